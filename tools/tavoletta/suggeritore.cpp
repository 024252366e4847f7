#include "tools/tavoletta/suggeritore.h"

#include <QStringList>
#include <algorithm>

namespace somme::tavoletta {

namespace {

QString InUnaParola(Tavoletta::Stato stato) {
  switch (stato) {
    case Tavoletta::Stato::Attende:
      return QStringLiteral("staccata");
    case Tavoletta::Stato::Collegata:
      return QStringLiteral("collegata");
    case Tavoletta::Stato::Tocchi:
      break;
  }
  return QStringLiteral("tocchi");
}

}  // namespace

Suggeritore::Suggeritore(Tavoletta& tavoletta,
                         const std::function<void(const QString& riga)>& racconta,
                         std::function<void()> fine)
    : tavoletta_(tavoletta), fine_(std::move(fine)) {
  QObject::connect(&tavoletta_, &Tavoletta::cambiata, &tavoletta_,
                   [this, racconta] { racconta(InUnaParola(tavoletta_.stato())); });
  QObject::connect(&tavoletta_, &Tavoletta::ricevuto, &tavoletta_,
                   [racconta](const QByteArray& richiesta) {
                     racconta(QStringLiteral("ricevuto ") + QString::fromLatin1(richiesta));
                   });
  QObject::connect(
      &tavoletta_, &Tavoletta::mandato, &tavoletta_, [racconta](const QByteArray& byte) {
        racconta(QStringLiteral("mandato ") + QString::fromLatin1(byte.toHex(' ').toUpper()));
      });
}

bool Suggeritore::Esegui(const QString& riga) {
  const QStringList parole = riga.simplified().split(u' ', Qt::SkipEmptyParts);
  if (parole.isEmpty()) return true;
  const QString& ordine = parole[0];
  if (ordine == u"tasto") return Tasto(parole);
  if (ordine == u"segno") return Segno(parole);
  if (ordine == u"cella") return Cella(parole);
  if (ordine == u"byte") return Byte(parole);
  if (ordine == u"foglio") return parole.size() == 2 && Scegli(parole[1]);
  if (parole.size() != 1) return false;
  if (ordine == u"ok") {
    tavoletta_.Manda(QByteArrayLiteral("OK"));
  } else if (ordine == u"taci" || ordine == u"parla") {
    tavoletta_.Rispondi(ordine == u"parla");
  } else if (ordine == u"stacca") {
    tavoletta_.Stacca();
  } else if (ordine == u"fine") {
    fine_();
  } else {
    return false;
  }
  return true;
}

bool Suggeritore::Scegli(const QString& nome) {
  const auto trovato = std::find_if(kFogli.begin(), kFogli.end(), [&nome](const Foglio& foglio) {
    return nome == QLatin1String(foglio.nome.data(), qsizetype(foglio.nome.size()));
  });
  if (trovato == kFogli.end()) return false;
  foglio_ = &*trovato;
  return true;
}

bool Suggeritore::Tasto(const QStringList& parole) {
  bool numero = false;
  const int tasto = parole.size() == 2 ? parole[1].toInt(&numero) : 0;
  if (!numero || tasto < 1 || tasto > foglio_->tastiera.Posti()) return false;
  Tocca(tasto);
  return true;
}

bool Suggeritore::Segno(const QStringList& parole) {
  const QString segno = parole.sliced(1).join(u' ');
  for (int posto = 1; !segno.isEmpty() && posto <= foglio_->tastiera.Posti(); ++posto) {
    if (Parola(*foglio_, posto) != segno) continue;
    Tocca(posto);
    return true;
  }
  return false;
}

void Suggeritore::Tocca(int posto) {
  const auto [colonne, righe] = foglio_->tastiera.CelleDi(posto);
  tavoletta_.Tocca((colonne.da + colonne.a) / 2, (righe.da + righe.a) / 2);
}

bool Suggeritore::Cella(const QStringList& parole) {
  if (parole.size() != 3 && parole.size() != 4) return false;
  bool colonnaBuona = false;
  bool rigaBuona = false;
  const int colonna = parole[1].toInt(&colonnaBuona);
  const int riga = parole[2].toInt(&rigaBuona);
  const bool dentro =
      colonna >= 1 && colonna <= kColonneGriglia && riga >= 1 && riga <= kRigheGriglia;
  if (!colonnaBuona || !rigaBuona || !dentro) return false;
  const QString stato = parole.value(3, QStringLiteral("1"));
  if (stato.size() != 1) return false;
  tavoletta_.Tocca(colonna, riga, stato[0].toLatin1());
  return true;
}

bool Suggeritore::Byte(const QStringList& parole) {
  QByteArray byte;
  for (const QString& parola : parole.sliced(1)) {
    bool buono = false;
    const uint valore = parola.toUInt(&buono, 16);
    if (!buono || valore > 0xFF) return false;
    byte.append(static_cast<char>(valore));
  }
  if (byte.isEmpty()) return false;
  tavoletta_.Manda(byte);
  return true;
}

}  // namespace somme::tavoletta
