#include "support/stampanti_di_prova.h"

#include "platform/base/paper_codes.h"

namespace prova {

platform::Paper CartaA4() {
  return {platform::kPaperA4, QStringLiteral("A4"), 210, 297, 0, 0};
}

platform::Paper CartaA3() {
  return {platform::kPaperA3, QStringLiteral("A3"), 297, 420, 0, 0};
}

platform::PrinterTraits StampanteDiProva(const platform::Paper& carta) {
  platform::PrinterTraits caratteristiche;
  caratteristiche.papers = {CartaA4(), CartaA3()};
  caratteristiche.standard.paper = carta;
  return caratteristiche;
}

StampantiDiProva::StampantiDiProva() {
  metti(QStringLiteral("Prova"), StampanteDiProva());
  elenco.standard = QStringLiteral("Prova");
}

void StampantiDiProva::metti(const QString& nome, const platform::PrinterTraits& caratteristiche) {
  if (!elenco.names.contains(nome)) elenco.names.append(nome);
  stampanti[nome] = {Access::Granted, caratteristiche};
}

void StampantiDiProva::nessuna() {
  elenco = {};
  stampanti.clear();
}

platform::Printers::List StampantiDiProva::list() {
  if (mentreRisponde) mentreRisponde();
  if (vere != nullptr) return vere->list();
  return elenco;
}

platform::Printers::Opened StampantiDiProva::open(const QString& name) {
  aperte.append(name);
  if (vere != nullptr) return vere->open(name);
  const auto trovata = stampanti.find(name);
  return trovata == stampanti.end() ? Opened{} : trovata->second;
}

platform::PrintResult StampantiDiProva::print(const platform::PrintJob& job) {
  if (mentreRisponde) mentreRisponde();
  if (vere != nullptr) return vere->print(job);
  if (esito.finished) lavori.push_back(job);
  return esito;
}

bool PaginaDiProva::choose(const QString& printer, const platform::PrinterTraits& /*traits*/,
                           platform::PrinterSettings& settings) {
  chieste.append(printer);
  return risposta && risposta(settings);
}

}  // namespace prova
