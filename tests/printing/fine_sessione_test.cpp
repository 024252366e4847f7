#include <QApplication>
#include <QComboBox>

#include "dialogo_di_prova.h"
#include "platform/forms/session_end.h"
#include "support/iscrizione.h"
#include "support/session.h"

namespace fine_sessione_test {

using prova::DialogoDiProva;
using somme::frmAvviaStampa;

// The desktop's session ends while the print dialog stands open.
class FineSessioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theDialogDoesNotRefuseIt() {
    DialogoDiProva prova;
    const auto viva = prova.forma.shared_from_this();  // asked about after its end
    const platform::SessionEnd fine(prova.banco.ambiente->fondo);
    std::optional<int> stato;
    prova.apri(prova.richiesta(), [&](const frmAvviaStampa&) {
      prova::endSession();
      stato = prova.banco.fine.stato;
    });
    QVERIFY(prova.visto);
    QCOMPARE(stato, std::optional(0));
    QVERIFY(prova.forma.isUnloaded());
    QVERIFY(prova.banco.stampanti.lavori.empty());
    QVERIFY(prova.messaggi().empty());
  }

  void anOpenListOfItDoesNotRefuseItEither() {
    DialogoDiProva prova;
    const auto viva = prova.forma.shared_from_this();
    const platform::SessionEnd fine(prova.banco.ambiente->fondo);
    std::optional<int> stato;
    bool aperta = false;
    prova.apri(prova.richiesta(), [&](const frmAvviaStampa& d) {
      prova.clicca(d.cboPrinterNames);
      aperta = QApplication::activePopupWidget() != nullptr;
      prova::endSession();
      stato = prova.banco.fine.stato;
    });
    QVERIFY(aperta);
    QCOMPARE(stato, std::optional(0));
    QVERIFY(prova.forma.isUnloaded());
  }

  void whileItPrintsItDoesNotRefuseItEither() {
    DialogoDiProva prova;
    const platform::SessionEnd fine(prova.banco.ambiente->fondo);
    std::optional<int> stato;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](const frmAvviaStampa& d) {
      prova.banco.stampanti.mentreRisponde = [&] {
        prova::endSession();
        stato = prova.banco.fine.stato;
      };
      prova.clicca(d.cmdStampa);
    });
    QCOMPARE(stato, std::optional(0));
    QVERIFY(prova.messaggi().empty());
  }
};

const prova::Iscrizione<FineSessioneTest, QApplication> kIscritta;

}  // namespace fine_sessione_test

#include "fine_sessione_test.moc"
