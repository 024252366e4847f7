#include <QApplication>
#include <QImage>
#include <QWidget>

#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"
#include "support/risposta_giusta.h"
#include "support/tavolozza_del_desktop.h"

namespace desktop_scuro_test {

using prova::Banco;
using prova::Risposta;
using prova::TavolozzaDelDesktop;

namespace {

constexpr QSize kFinestra{800, 600};

QImage Ritratto(Banco& banco) {
  banco.tempo.advance(1);
  QCoreApplication::processEvents();
  return banco.ambiente->fondo.window().grab().toImage();
}

// A form at its start, and an exercise after a wrong and after a right answer.
std::vector<QImage> Stati(const somme::SchedaForma& scheda) {
  std::vector<QImage> stati;
  {
    Banco banco(kFinestra);
    prova::ComeDalMenu(*banco.ambiente, scheda.nome);
    banco.mostra(scheda.nome);
    stati.push_back(Ritratto(banco));
  }
  if (scheda.genere != somme::Genere::Esercizio) return stati;
  for (const Risposta quale : {Risposta::Sbagliata, Risposta::Giusta}) {
    Banco banco(kFinestra);
    prova::FinoAllUltimoGesto(banco, scheda.nome, quale)();
    stati.push_back(Ritratto(banco));
  }
  return stati;
}

}  // namespace

// The colours of the desktop: no form takes any of them, and no mark is lost in one.
class DesktopScuroTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void onADarkDesktopAndInHighContrastEveryFormLooksTheSame_data() {
    QTest::addColumn<QByteArray>("nome");
    for (const somme::SchedaForma& scheda : somme::LeForme()) {
      if (prova::VuoleRisposta(scheda)) continue;
      const QByteArray nome(scheda.nome.data(), qsizetype(scheda.nome.size()));
      QTest::newRow(nome.constData()) << nome;
    }
  }
  void onADarkDesktopAndInHighContrastEveryFormLooksTheSame() {
    QFETCH(QByteArray, nome);
    const somme::SchedaForma& scheda = somme::SchedaDi(somme::LeForme(), nome.toStdString());
    const std::vector<QImage> soliti = Stati(scheda);
    const std::pair<QColor, QColor> desktop[]{{QColor(35, 38, 41), QColor(239, 240, 241)},
                                              {Qt::black, Qt::yellow}};
    for (const auto& [fondo, scritto] : desktop) {
      const TavolozzaDelDesktop tavolozza(fondo, scritto);
      const std::vector<QImage> altri = Stati(scheda);
      for (std::size_t i = 0; i < soliti.size(); ++i) QCOMPARE(altri[i], soliti[i]);
    }
  }
};

const prova::Iscrizione<DesktopScuroTest, QApplication> kIscritta;

}  // namespace desktop_scuro_test

#include "desktop_scuro_test.moc"
