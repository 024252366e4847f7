#include <QApplication>
#include <QImage>
#include <algorithm>
#include <map>

#include "app/tabella_forme.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/text_block.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"

namespace pulsanti_leggibili_test {

using platform::Button;
using prova::Banco;

namespace {

// The colour that most of a picture has.
QColor Fondo(const QImage& immagine) {
  std::map<QRgb, int> quante;
  for (int y = 0; y < immagine.height(); ++y) {
    for (int x = 0; x < immagine.width(); ++x) ++quante[immagine.pixel(x, y)];
  }
  return QColor(
      std::ranges::max_element(quante, {}, [](const auto& una) { return una.second; })->first);
}

QColor FondoDi(const Button& pulsante) {
  return Fondo(pulsante.widget()->grab().toImage());
}

// Pixels of the button's face between its right edge and what is written on it, in the rows of
// the words.
int LiberiADestra(const Button& pulsante) {
  const QImage immagine = pulsante.widget()->grab().toImage();
  const QColor faccia = Fondo(immagine);
  const auto piena = [&](int x) {
    for (int y = immagine.height() * 2 / 5; y < immagine.height() * 3 / 5; ++y) {
      if (immagine.pixelColor(x, y) != faccia) return false;
    }
    return true;
  };
  int bordo = immagine.width() - 1;
  while (bordo > 0 && !piena(bordo)) --bordo;
  int scritto = bordo;
  while (scritto > 0 && piena(scritto)) --scritto;
  return bordo - scritto;
}

}  // namespace

// Every button of every form with words on it: they stand out of its ground at rest, below the
// mouse and held down.
class PulsantiLeggibiliTest : public QObject {
  Q_OBJECT

  // Those that the mouse can press.
  static std::vector<const Button*> pulsanti(const platform::Form& forma) {
    std::vector<const Button*> tutti;
    for (const platform::Control* controllo : forma.controls()) {
      const auto* pulsante = dynamic_cast<const Button*>(controllo);
      if (pulsante == nullptr || !pulsante->isLive()) continue;
      if (!pulsante->caption().trimmed().isEmpty()) tutti.push_back(pulsante);
    }
    return tutti;
  }

 private Q_SLOTS:
  void wordsOnAButtonStandOutInEachState_data() {
    QTest::addColumn<QByteArray>("nome");
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (prova::VuoleRisposta(scheda)) continue;
      const QByteArray nome(scheda.nome.data(), qsizetype(scheda.nome.size()));
      QTest::newRow(nome.constData()) << nome;
    }
  }
  void wordsOnAButtonStandOutInEachState() {
    QFETCH(QByteArray, nome);
    constexpr double kLeggibile = 4.5;
    Banco banco({800, 600});
    if (somme::SchedaDi(banco.ambiente->forme, nome.toStdString()).genere ==
        somme::Genere::Esercizio) {
      prova::ComeDalMenu(*banco.ambiente, nome.toStdString());
    }
    banco.mostra(nome.toStdString());
    const QPoint via(1, 599);
    for (const Button* pulsante : pulsanti(*banco.ambiente->fondo.forms().current())) {
      const QColor inchiostro = platform::toColor(pulsante->foreColor());
      QTest::mouseMove(banco.finestra(), via);
      QCoreApplication::processEvents();
      const QColor fermo = FondoDi(*pulsante);
      QTest::mouseMove(banco.finestra(), banco.centro(*pulsante));
      QCoreApplication::processEvents();
      const QColor indicato = FondoDi(*pulsante);
      QTest::mousePress(banco.finestra(), Qt::LeftButton, {}, banco.centro(*pulsante));
      const QColor premuto = FondoDi(*pulsante);
      QTest::mouseRelease(banco.finestra(), Qt::LeftButton, {}, via);
      const QByteArray quale = nome + '.' + pulsante->name().toUtf8();
      QVERIFY2(indicato != fermo, quale);
      QVERIFY2(premuto != fermo && premuto != indicato, quale);
      for (const QColor& fondo : {fermo, indicato, premuto}) {
        QVERIFY2(platform::contrast(inchiostro, fondo) >= kLeggibile, quale);
      }
    }
  }

  // It lies flat, and smaller than its place.
  void whatIsWrittenOnAButtonThatCannotBeUsedKeepsClearOfItsEdge_data() {
    QTest::addColumn<QString>("lingua");
    for (const char* lingua : {"Italiano", "English", "Français", "Deutsch", "Español"}) {
      QTest::newRow(lingua) << QString::fromUtf8(lingua);
    }
  }
  void whatIsWrittenOnAButtonThatCannotBeUsedKeepsClearOfItsEdge() {
    QFETCH(QString, lingua);
    constexpr int kLiberi = 3;
    int provati = 0;
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (scheda.genere != somme::Genere::Esercizio) continue;
      Banco banco({800, 600});
      banco.ambiente->stato.LinguaCorrente = lingua;
      prova::ComeDalMenu(*banco.ambiente, scheda.nome);
      banco.mostra(scheda.nome);
      for (const platform::Control* controllo :
           banco.ambiente->fondo.forms().current()->controls()) {
        const auto* pulsante = dynamic_cast<const Button*>(controllo);
        if (pulsante == nullptr || !pulsante->widget()->isVisible()) continue;
        if (pulsante->isEnabled() || pulsante->caption().trimmed().isEmpty()) continue;
        const int liberi = LiberiADestra(*pulsante);
        QVERIFY2(liberi >= kLiberi,
                 qPrintable(
                     QStringLiteral("%1, %2: %3")
                         .arg(QString::fromUtf8(scheda.nome.data(), qsizetype(scheda.nome.size())),
                              pulsante->name(), QString::number(liberi))));
        ++provati;
      }
    }
    QVERIFY(provati > 10);
  }
};

const prova::Iscrizione<PulsantiLeggibiliTest, QApplication> kIscritta;

}  // namespace pulsanti_leggibili_test

#include "pulsanti_leggibili_test.moc"
