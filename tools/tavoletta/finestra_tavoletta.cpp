#include "tools/tavoletta/finestra_tavoletta.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace somme::tavoletta {

namespace {

constexpr int kGrandezzaTesto = 16;  // pixels

QString Spiega(Tavoletta::Stato stato) {
  switch (stato) {
    case Tavoletta::Stato::Attende:
      return QStringLiteral(
          "In attesa. Nel programma scegli Impostazioni, Modalità di input, Tastiera HelpiKeys, "
          "poi apri un esercizio.");
    case Tavoletta::Stato::Collegata:
      return QStringLiteral("Il programma è collegato, ma non aspetta tocchi.");
    case Tavoletta::Stato::Tocchi:
      break;
  }
  return QStringLiteral("Il programma aspetta i tocchi: fai clic sui tasti del foglio.");
}

}  // namespace

FinestraTavoletta::FinestraTavoletta(Tavoletta& tavoletta) : tavoletta_(tavoletta) {
  setWindowTitle(QStringLiteral("Tavoletta di prova"));
  for (const tavoletta::Foglio& foglio : kFogli) {
    scelta_.addItem(QString::fromUtf16(foglio.titolo.data(), qsizetype(foglio.titolo.size())));
  }
  scelta_.setAccessibleName(QStringLiteral("Foglio"));
  ok_.setText(QStringLiteral("Invia &OK"));
  ok_.setToolTip(QStringLiteral(
      "Ogni OK accende o spegne i tocchi nel programma: inviane uno se non li sente più, "
      "per esempio dopo la stampa del foglio."));
  Disponi();
  connect(&scelta_, &QComboBox::currentIndexChanged, this,
          [this](int quale) { foglio_.Mostra(kFogli.at(std::size_t(quale))); });
  connect(&foglio_, &FoglioTavoletta::toccata, this, &FinestraTavoletta::Toccata);
  connect(&ok_, &QPushButton::clicked, this, [this] { tavoletta_.Manda(QByteArrayLiteral("OK")); });
  connect(&tavoletta_, &Tavoletta::cambiata, this, &FinestraTavoletta::Aggiorna);
}

void FinestraTavoletta::Disponi() {
  QFont carattere = font();
  carattere.setPixelSize(kGrandezzaTesto);
  setFont(carattere);
  stato_.setWordWrap(true);
  stato_.setMinimumHeight(3 * kGrandezzaTesto);
  auto* sopra = new QHBoxLayout;
  auto* nome = new QLabel(QStringLiteral("&Foglio:"));
  nome->setBuddy(&scelta_);
  sopra->addWidget(nome);
  sopra->addWidget(&scelta_);
  sopra->addStretch();
  sopra->addWidget(&ok_);
  auto* tutto = new QVBoxLayout(this);
  tutto->addLayout(sopra);
  tutto->addWidget(&foglio_, 1);
  tutto->addWidget(&stato_);
  tutto->addWidget(&tocco_);
}

void FinestraTavoletta::Apri(quint16 porta) {
  const bool libera = tavoletta_.Ascolta(porta);
  foglio_.setEnabled(libera);
  Aggiorna();
  if (libera) return;
  stato_.setText(QStringLiteral("La porta %1 è occupata: c'è già un'altra tavoletta, o la tastiera "
                                "HelpiKeys. Chiudila e riapri questa finestra.")
                     .arg(porta));
}

void FinestraTavoletta::Aggiorna() {
  ok_.setVisible(tavoletta_.stato() != Tavoletta::Stato::Attende);
  stato_.setText(Spiega(tavoletta_.stato()));
  tocco_.setText(QStringLiteral(" "));
}

void FinestraTavoletta::Toccata(int colonna, int riga) {
  const tavoletta::Foglio& foglio = kFogli.at(std::size_t(scelta_.currentIndex()));
  const int tasto = foglio.tastiera.Posto(colonna, riga);
  tavoletta_.Tocca(colonna, riga);
  tocco_.setText(
      tasto == 0
          ? QStringLiteral("Colonna %1, riga %2: nessun tasto").arg(colonna).arg(riga)
          : QStringLiteral("Colonna %1, riga %2: tasto %3").arg(colonna).arg(riga).arg(tasto));
}

}  // namespace somme::tavoletta
