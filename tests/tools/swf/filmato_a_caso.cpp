#include "tests/tools/swf/filmato_a_caso.h"

#include <QRegularExpression>
#include <QTransform>

#include "tests/tools/swf/racconto.h"

namespace prove {

using namespace somme::swf;

namespace {

constexpr double kTwip = 20;
constexpr int kAnnidatoAlPiu = 4;  // clips and buttons, one within the other

Punto inPixel(QPoint twip) {
  return {twip.x() / kTwip, twip.y() / kTwip};
}

QString detto(Colore c) {
  return QString::number(qRgba(c.rosso, c.verde, c.blu, c.opacita), 16);
}

QString detto(const TrasformaColore& t) {
  QString testo = QStringLiteral(" colore");
  for (const auto& canale : {t.rosso, t.verde, t.blu, t.opacita}) {
    testo += QStringLiteral(" %1/%2").arg(canale.per).arg(canale.piu);
  }
  return testo;
}

QString detto(const Matrice& m) {
  return u' ' + matrice(QTransform(m.a, m.b, m.c, m.d, std::lround(m.tx * kTwip),
                                   std::lround(m.ty * kTwip)));
}

QString inCifre(const Azioni& azioni) {
  auto byte = azioni.byte();
  byte.push_back(0);
  return byteInCifre(byte);
}

Filmato::Palco palco(std::mt19937& sorte) {
  const auto fra = [&](int da, int a) { return std::uniform_int_distribution(da, a)(sorte); };
  return {double(fra(1, 2000)), double(fra(1, 2000)), fra(1, 60 * 256) / 256.0,
          Colore{std::uint8_t(fra(0, 255)), std::uint8_t(fra(0, 255)), std::uint8_t(fra(0, 255))}};
}

}  // namespace

FilmatoACaso::FilmatoACaso(unsigned seme)
    : sorte_(seme), filmato_([this] {
        const Filmato::Palco p = palco(sorte_);
        testa_ = QStringLiteral("palco %1 %2 cadenza %3 fotogrammi %6 sfondo %4 guasti %5")
                     .arg(p.larghezza * kTwip)
                     .arg(p.altezza * kTwip)
                     .arg(p.fotogrammiAlSecondo)
                     .arg(detto(p.sfondo))
                     .arg(0);
        return p;
      }()) {
  forma();
  const int quanti = fra(0, 12);
  for (int i = 0; i < quanti; ++i) {
    const int che = fra(1, 3);
    che == 1 ? forma() : che == 2 ? clip() : pulsante();
  }
  riempi(filmato_.scena(), scena_, kAnnidatoAlPiu, true);
  testa_ = testa_.arg(filmato_.scena().finiti());
}

QStringList FilmatoACaso::racconto() const {
  return QStringList{testa_} + definizioni_ + QStringList{QStringLiteral("scena")} + scena_;
}

int FilmatoACaso::fra(int minimo, int massimo) {
  return std::uniform_int_distribution(minimo, massimo)(sorte_);
}

// Small and large distances alike, so that all widths of bit fields come about.
QPoint FilmatoACaso::punto() {
  const int lato = 1 << fra(0, 13);
  return {fra(-lato, lato), fra(-lato, lato)};
}

Colore FilmatoACaso::colore() {
  const auto canale = [this] { return std::uint8_t(fra(0, 255)); };
  return {canale(), canale(), canale(), canale()};
}

Posa FilmatoACaso::posa(QString& detta, bool conNome) {
  Posa posa;
  if (caso(7)) {
    Matrice m;
    const auto fattore = [this] { return fra(-(1 << fra(1, 20)), 1 << fra(1, 20)) / 65536.0; };
    if (caso(5)) m.a = fattore(), m.d = fattore();
    if (caso(4)) m.b = fattore(), m.c = fattore();
    const Punto dove = inPixel(punto());
    m.tx = dove.x;
    m.ty = dove.y;
    posa.matrice = m;
    detta += detto(m);
  }
  if (caso(4)) {
    TrasformaColore t;
    for (auto* canale : {&t.rosso, &t.verde, &t.blu, &t.opacita}) {
      if (caso(5)) canale->per = fra(-1, 1) * fra(0, 512);
      if (caso(4)) canale->piu = fra(-255, 255);
    }
    posa.colore = t;
    detta += detto(t);
  }
  if (conNome && caso(5)) {
    posa.nome = "però" + std::to_string(fra(0, 99));
    detta += QStringLiteral(" nome ") + QString::fromStdString(posa.nome);
  }
  return posa;
}

const FilmatoACaso::Fatto& FilmatoACaso::unoFatto(int annidatoAlPiu) {
  for (;;) {
    const Fatto& uno = fatti_[std::size_t(fra(0, int(fatti_.size()) - 1))];
    if (uno.annidato <= annidatoAlPiu) return uno;
  }
}

// Every point lies elsewhere than the one before: a step of no length is not written.
Percorso FilmatoACaso::percorso(bool chiuso, QStringList& pezzi) {
  Percorso percorso;
  const int contorni = fra(1, 3);
  for (int i = 0; i < contorni; ++i) {
    const QPoint inizio = punto();
    QPoint qui = inizio;
    percorso.vai(inPixel(inizio));
    pezzi += pezzo('v', {}, inizio);
    const auto linea = [&](QPoint fino) {
      if (fino == qui) return;
      percorso.linea(inPixel(fino));
      pezzi += pezzo('l', {}, fino);
      qui = fino;
    };
    const int lati = fra(2, 9);
    for (int lato = 0; lato < lati; ++lato) {
      if (caso(4)) {
        linea(caso(3) ? QPoint(qui.x(), punto().y()) : punto());
        continue;
      }
      const QPoint controllo = punto();
      qui = punto();
      percorso.curva(inPixel(controllo), inPixel(qui));
      pezzi += pezzo('c', controllo, qui);
    }
    if (chiuso) linea(inizio);
  }
  return percorso;
}

Riempimento FilmatoACaso::riempimento(QString& detto) {
  if (caso(5)) {
    const Colore c = colore();
    detto = QStringLiteral("tinta ") + prove::detto(c);
    return Riempimento::tinta(c);
  }
  const bool lineare = caso(5);
  detto = lineare ? QStringLiteral("lineare") : QStringLiteral("radiale");
  std::vector<Fermata> fermate;
  int rapporto = fra(0, 20);
  for (int quante = fra(1, 8); quante > 0; --quante) {
    fermate.push_back({rapporto / 255.0, colore()});
    detto += QStringLiteral(" %1:%2").arg(rapporto).arg(prove::detto(fermate.back().colore));
    rapporto += fra(1, 29);
  }
  const QPoint da = punto();
  QPoint a = punto();
  if (lineare) {
    sfumature_.push_back({da, a});
    return Riempimento::lineare(inPixel(da), inPixel(a), std::move(fermate));
  }
  const QPoint raggi(fra(1, 9000), fra(1, 9000));
  sfumature_.push_back({da, da + raggi});
  return Riempimento::radiale(inPixel(da), raggi.x() / kTwip, raggi.y() / kTwip,
                              std::move(fermate));
}

void FilmatoACaso::forma() {
  Forma forma;
  QStringList detta;
  const int strati = fra(1, 5);
  for (int i = 0; i < strati; ++i) {
    const bool piena = caso(7);
    std::optional<Penna> penna;
    if (!piena || caso(4)) penna = Penna{fra(1, 2000) / kTwip, colore()};
    QStringList pezzi;
    const Percorso percorso = this->percorso(piena, pezzi);
    QStringList ordinati = pezzi.filter(QRegularExpression(QStringLiteral("^[lc]")));
    ordinati.sort();
    if (piena) {
      QString detto;
      forma.dipingi(percorso, riempimento(detto), penna);
      detta += QStringLiteral("pieno ") + detto + u' ' + ordinati.join(u' ');
    } else {
      forma.traccia(percorso, *penna);
    }
    if (penna) {
      detta += QStringLiteral("penna %1 tinta %2 ")
                   .arg(std::lround(penna->spessore * kTwip))
                   .arg(detto(penna->colore)) +
               pezzi.join(u' ');
    }
  }
  fatti_.push_back({filmato_.definisci(forma), 0});
  definizioni_ += QStringLiteral("carattere %1").arg(fatti_.size());
  definizioni_ += detta;
}

void FilmatoACaso::pulsante() {
  Pulsante pulsante;
  QStringList detto;
  int annidato = 0;
  const int aspetti = fra(1, 4);
  for (int i = 0; i < aspetti; ++i) {
    const Fatto& che = unoFatto(kAnnidatoAlPiu - 1);
    annidato = std::max(annidato, che.annidato);
    const unsigned stati = unsigned(fra(1, 15));
    const int profondita = fra(1, 0xFFFF);
    QString detta;
    Posa posa = this->posa(detta, false);
    // A button's record says its place and its colours always.
    if (!posa.matrice) posa.matrice = Matrice{};
    if (!posa.colore) posa.colore = TrasformaColore{};
    pulsante.mostra(stati, profondita, che.carattere, posa);
    detto += QStringLiteral("stati %1 poni %2 che %3%4%5")
                 .arg(stati)
                 .arg(profondita)
                 .arg(che.carattere.numero)
                 .arg(prove::detto(*posa.matrice), prove::detto(*posa.colore));
  }
  if (caso(7)) {
    constexpr int kRilascio = 8;
    const Azioni azioni = this->azioni();
    pulsante.alRilascio(azioni);
    detto += QStringLiteral("su %1 ").arg(kRilascio) + inCifre(azioni);
  }
  fatti_.push_back({filmato_.definisci(pulsante), annidato + 1});
  definizioni_ += QStringLiteral("carattere %1").arg(fatti_.size());
  definizioni_ += detto;
}

void FilmatoACaso::clip() {
  LineaTempo linea;
  QStringList detta;
  const int annidato = riempi(linea, detta, kAnnidatoAlPiu - 1, false);
  fatti_.push_back({filmato_.definisci(linea), annidato + 1});
  definizioni_ += QStringLiteral("carattere %1").arg(fatti_.size());
  definizioni_ += detta;
}

int FilmatoACaso::riempi(LineaTempo& linea, QStringList& detta, int annidatoAlPiu, bool parla) {
  int annidato = 0;
  const int fotogrammi = fra(1, 8);
  for (int f = 1; f <= fotogrammi; ++f) {
    const bool nominato = caso(3);
    detta += QStringLiteral("fotogramma %1 %2")
                 .arg(f)
                 .arg(nominato ? QStringLiteral("parte%1").arg(f) : QString());
    if (nominato) linea.nomina("Parte" + std::to_string(f));
    const int mosse = fra(0, 6);
    for (int i = 0; i < mosse; ++i) {
      const int profondita = caso(8) ? fra(1, 5) : fra(1, 0xFFFF);
      QString come;
      if (caso(6)) {
        const Fatto& che = unoFatto(annidatoAlPiu);
        annidato = std::max(annidato, che.annidato);
        linea.poni(profondita, che.carattere, posa(come, true));
        detta +=
            QStringLiteral("poni %1 che %2%3").arg(profondita).arg(che.carattere.numero).arg(come);
      } else if (caso(5)) {
        linea.muovi(profondita, posa(come, true));
        detta += QStringLiteral("muovi %1%2").arg(profondita).arg(come);
      } else {
        linea.togli(profondita);
        detta += QStringLiteral("togli %1").arg(profondita);
      }
    }
    if (parla || caso(3)) {
      const Azioni azioni = parla ? azioniCheParlano() : this->azioni();
      linea.esegui(azioni);
      detta += QStringLiteral("esegui ") + inCifre(azioni);
    }
    linea.mostra();
  }
  return annidato;
}

// Only what leaves the timelines where they are and tells the host nothing.
Azioni FilmatoACaso::azioni() {
  Azioni azioni;
  for (int quante = fra(1, 6); quante > 0; --quante) {
    switch (fra(1, 4)) {
      case 1:
        azioni.spingi("nome").spingi(fra(-1000, 1000)).scriviVariabile();
        break;
      case 2:
        azioni.spingi("").spingi(Proprieta::X).spingi(fra(-9, 9) / 4.0).scriviProprieta();
        break;
      case 3: {
        const Azioni::Segno dopo = azioni.nuovoSegno();
        azioni.spingi(fra(0, 1)).saltaSe(dopo).bersaglio("altrove").bersaglio("").segna(dopo);
        break;
      }
      default:
        azioni.riproduci();
    }
  }
  return azioni;
}

// Fixed words, words put together, numbers worked out, and one of two ways to go on.
Azioni FilmatoACaso::azioniCheParlano() {
  Azioni azioni;
  const QString nome = QStringLiteral("c%1").arg(comandi_.size());
  const std::string scritto = nome.toStdString();
  const int primo = fra(-1000, 1000);
  const int secondo = fra(-1000, 1000);
  azioni.comando(scritto, "sì");
  azioni.spingi("FSCommand:").spingi(scritto).unisciTesti().spingi(primo).spingi(secondo);
  const bool somma = caso(5);
  (somma ? azioni.somma() : azioni.moltiplica()).comandoCalcolato();
  comandi_ += nome + QStringLiteral("=sì");
  comandi_ += nome + QStringLiteral("=%1").arg(somma ? primo + secondo : primo * secondo);
  const bool salta = caso(5);
  const Azioni::Segno altro = azioni.nuovoSegno();
  const Azioni::Segno dopo = azioni.nuovoSegno();
  azioni.spingi(salta ? 1 : 0).saltaSe(altro).comando(scritto, "resta").salta(dopo);
  azioni.segna(altro).comando(scritto, "salta").segna(dopo);
  comandi_ += nome + (salta ? QStringLiteral("=salta") : QStringLiteral("=resta"));
  return azioni;
}

}  // namespace prove
