#include <QAccessible>
#include <QApplication>
#include <QComboBox>

#include "dialogo_di_prova.h"
#include "support/iscrizione.h"

namespace pressione_test {

using prova::DialogoDiProva;
using somme::frmAvviaStampa;

namespace {

QAccessibleInterface& detto(const platform::Control& controllo) {
  return *QAccessible::queryAccessibleInterface(controllo.widget());
}

// The action of assistive technology, until it has come to its end.
void agisci(const platform::Control& controllo, const QString& azione) {
  detto(controllo).actionInterface()->doAction(azione);
  QCoreApplication::processEvents();
}

void premi(const platform::Control& controllo) {
  agisci(controllo, QAccessibleActionInterface::pressAction());
}
// The toolkit chooses from a list for assistive technology by this call, past all events.
QComboBox& elenco(const frmAvviaStampa& dialogo) {
  return static_cast<QComboBox&>(*dialogo.cboPrinterNames.widget());
}
void scegli(const platform::Control& controllo) {
  agisci(controllo, QAccessibleActionInterface::toggleAction());
}

}  // namespace

// The print dialog by assistive technology alone.
class PressioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void threePressesWhileThePrinterIsWaitedForAreOneJob() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    bool caduta = true;
    QString scelta;
    prova.banco.stampanti.metti(QStringLiteral("Altra"), prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const bool prima = d.A3[0].isSelected();
      prova.banco.stampanti.mentreRisponde = [&] {
        premi(d.cmdStampa);
        premi(d.cmdStampa);
        scegli(d.A3[prima ? 1 : 0]);
        elenco(d).setCurrentIndex(1 - d.cboPrinterNames.listIndex());
        caduta = d.A3[0].isSelected() != prima;
        scelta = d.cboPrinterNames.text();
      };
      premi(d.cmdStampa);
    });
    QCOMPARE(prova.banco.stampanti.lavori.size(), size_t(1));
    QVERIFY(!caduta);
    QCOMPARE(scelta, QStringLiteral("Prova"));
  }

  void underTheDialogNothingCanBePressed() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      premi(prova.forma.PulsanteNumero[0]);
      premi(prova.forma.PulsanteNumero[10]);
      premi(d.cmdChiudi);
      QVERIFY(d.isUnloaded());
    });
    QCOMPARE(prova.banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(prova.banco.ambiente->stato.ContaEsatti, qint16(0));
  }

  void anOptionAndABoxAreToggledAndSayHowTheyStand() {
    DialogoDiProva prova;
    prova.stampante(prova::StampanteDiProva(prova::CartaA3()));
    prova.apri(prova.richiesta(), [&](frmAvviaStampa& d) {
      const int altra = d.A3[0].isSelected() ? 1 : 0;
      QCOMPARE(detto(d.A3[altra]).role(), QAccessible::RadioButton);
      QVERIFY(detto(d.A3[altra]).state().checkable && !detto(d.A3[altra]).state().checked);
      scegli(d.A3[altra]);
      QVERIFY(detto(d.A3[altra]).state().checked);
      const bool prima = d.chkProporzioni.isChecked();
      QCOMPARE(detto(d.chkProporzioni).role(), QAccessible::CheckBox);
      scegli(d.chkProporzioni);
      QCOMPARE(d.chkProporzioni.isChecked(), !prima);
      QCOMPARE(bool(detto(d.chkProporzioni).state().checked), !prima);
    });
    QVERIFY(prova.visto);
  }
};

const prova::Iscrizione<PressioneTest, QApplication> kIscritta;

}  // namespace pressione_test

#include "pressione_test.moc"
