#include <QApplication>

#include "app/menu_di_famiglia.h"
#include "app/shared/nomi_forme.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/button_widget.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/lati_e_lingue.h"

namespace livelli_uguali_test {

using prova::Banco;
using namespace somme::forme;

namespace {

constexpr std::string_view kMenu[] = {kFormMenuAbaco, kFormMenuBarre, kFormMenuNumeri, kFormMenuPLU,
                                      kFormMenuTabella};

}  // namespace

// The levels of a menu are of one kind, and one is no less than another.
class LivelliUgualiTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theLevelsOfAMenuAreWrittenInLettersOfOneSize_data() { prova::ogniLatoInOgniLingua(); }
  void theLevelsOfAMenuAreWrittenInLettersOfOneSize() {
    QFETCH(QSize, lato);
    QFETCH(QString, lingua);
    Banco banco(lato);
    QVERIFY(QFile::exists(banco.percorso(lingua + QStringLiteral(".lng"))));
    banco.ambiente->stato.LinguaCorrente = lingua;
    int livelli = 0;
    for (const std::string_view menu : kMenu) {
      const auto& forma = banco.apri<somme::MenuDiFamiglia>(menu);
      QMap<int, QStringList> misure;
      for (platform::Control* controllo : forma.controls()) {
        const auto* pulsante = dynamic_cast<const platform::Button*>(controllo);
        if (pulsante == nullptr || !pulsante->isVisible()) continue;
        if (pulsante->look().picture == "indietro") continue;
        auto* widget = static_cast<platform::ButtonWidget*>(controllo->widget());
        misure[widget->captionSize()] += pulsante->caption();
        ++livelli;
      }
      QVERIFY2(misure.size() == 1, qPrintable(forma.name() + QStringLiteral(": ") +
                                              misure.first().join(QStringLiteral(", "))));
    }
    QCOMPARE(livelli, 75);
  }
};

const prova::Iscrizione<LivelliUgualiTest, QApplication> kIscritta;

}  // namespace livelli_uguali_test

#include "livelli_uguali_test.moc"
