#include "exercises/numbers/forma_numeri_scansione.h"

#include <QApplication>

#include "app/form_menu_numeri.h"
#include "app/shared/nomi_forme.h"
#include "numeri_di_prova.h"
#include "platform/forms/loaded_form.h"
#include "support/iscrizione.h"
#include "support/scansione_di_prova.h"

namespace forma_numeri_scansione_test {

using prova::Banco;
using prova::scegliCifre;
using somme::FormaNumeriScansione;
using somme::TastieraNumericaScansione;

namespace {

constexpr int kCestino = TastieraNumericaScansione::kCestino;
constexpr int kAiuto = TastieraNumericaScansione::kAiuto;
constexpr int kConferma = TastieraNumericaScansione::kConferma;
constexpr int kAvanti = TastieraNumericaScansione::kAvanti;

template <class F>
F& apri(Banco& banco, std::string_view nome, qint16 modo,
        const std::vector<prova::SorteDiProva::Estrazione>& estrazioni = prova::kTrePiuQuattro) {
  banco.ambiente->stato.ModalitaInput = modo;
  return prova::apriNumeri<F>(banco, nome, 1, "Solo numeri. Entro 10: somme", estrazioni);
}

FormaNumeriScansione& apriTotale(Banco& banco, qint16 modo = 1) {
  return apri<FormaNumeriScansione>(banco, somme::forme::kFormNumeriTotaleScansione, modo);
}

}  // namespace

// The number exercises by scanning, as a pupil with one or two keys uses them.
class FormaNumeriScansioneTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void itOpensWithTheQuestionAndTheKeyboardLitOnTheFirstKey() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    QVERIFY(forma.withoutRow().empty());
    const TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QVERIFY(tastiera.isVisible());
    QVERIFY(tastiera.PictureScansione.hasFocus());
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(0));
    QVERIFY(!tastiera.AiutoVisibile.get());
    QVERIFY(!tastiera.AvantiAttivo.get());
    QVERIFY(!tastiera.PulsanteNumero[kAiuto].isVisible());
    QVERIFY(!tastiera.PulsanteNumero[kAvanti].isEnabled());
    QVERIFY(forma.ImgSi.isVisible());
    QVERIFY(!forma.ImgNo.isVisible());
    QVERIFY(!forma.TestoInputInvisibile.isVisible());
    QVERIFY(forma.TestoInput.isVisible());
    QCOMPARE(forma.TestoStampa.text(), QStringLiteral("\r\nSolo numeri. Entro 10: somme\r\n\r\n"));
  }

  void theKeyboardTakesItsPlaceFromTheHiddenLabelAndItsHeightFromItsWidth() {
    for (const QSize lato : {QSize(800, 600), QSize(1366, 768)}) {
      Banco banco(lato);
      FormaNumeriScansione& forma = apriTotale(banco);
      const platform::Label& etichetta = forma.LabelPerTastieraNumerica;
      const TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
      QVERIFY(!etichetta.isVisible());
      QCOMPARE(qRound(tastiera.width()), qRound(etichetta.width()));
      QCOMPARE(qRound(tastiera.top()), qRound(etichetta.top()));
      QCOMPARE(qRound(tastiera.left()), qRound(etichetta.left()));
      QCOMPARE(qRound(tastiera.height()), qRound(tastiera.width()) / 14);
    }
  }

  void aWholeSumByManualScanning() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QVERIFY(!forma.TastieraNumericaScansione1.ScansioneAutomatica.get());
    QVERIFY(!forma.TastieraNumericaScansione1.TimerScansione.isEnabled());
    QVERIFY(scegliCifre(banco, forma, {7, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    QCOMPARE(forma.EtichettaEsatti.caption(), QStringLiteral("Esatti  1"));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 =  7"));
    QVERIFY(forma.TestoStampa.text().endsWith(QStringLiteral(" 3 +  4 =  7\r\n")));
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/si.wav"))});
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(kAvanti));
    QVERIFY(forma.TestoInput.Enabled.get());
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    QVERIFY(scegliCifre(banco, forma, {kAvanti}));
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 2 +  3 = "));
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(0));
    QVERIFY(!forma.TastieraNumericaScansione1.PulsanteNumero[kAvanti].isEnabled());
    QVERIFY(scegliCifre(banco, forma, {5, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aWholeSumByAutomaticScanningWithOneKey() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco, 2);
    TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QVERIFY(tastiera.ScansioneAutomatica.get());
    QVERIFY(prova::scegliAspettando(banco, tastiera, 7));
    QCOMPARE(forma.TestoInput.Text.get(), QStringLiteral("7"));
    QVERIFY(prova::scegliAspettando(banco, tastiera, kConferma));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
    // The light waits for the pupil.
    banco.tempo.advance(30);
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(kAvanti));
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    banco.batti(Qt::Key_Space);
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 2 +  3 = "));
    QVERIFY(prova::scegliAspettando(banco, tastiera, 5));
    QVERIFY(prova::scegliAspettando(banco, tastiera, kConferma));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(2));
  }

  void aChangeOfThePaceReachesTheKeyboardAtTheNextCase() {
    Banco banco;
    banco.ambiente->stato.TempoScansione = 6;
    FormaNumeriScansione& forma = apriTotale(banco, 2);
    TastieraNumericaScansione& tastiera = forma.TastieraNumericaScansione1;
    QCOMPARE(tastiera.TimerScansione.interval(), 1500);
    banco.ambiente->stato.TempoScansione = 12;
    QVERIFY(prova::scegliAspettando(banco, tastiera, 7));
    QVERIFY(prova::scegliAspettando(banco, tastiera, kConferma));
    QCOMPARE(tastiera.TimerScansione.interval(), 1500);
    banco.batti(Qt::Key_Space);
    QCOMPARE(tastiera.TimerScansione.interval(), 3000);
    QCOMPARE(tastiera.pulsanteAcceso(), qint16(0));
  }

  void aDigitBeyondTheLimitIsDroppedWithoutASound() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QCOMPARE(forma.TestoInput.MaxLength.get(), qint16(2));
    QVERIFY(scegliCifre(banco, forma, {1, 2, 3}));
    QCOMPARE(forma.TestoInput.Text.get(), QStringLiteral("12"));
    QVERIFY(banco.suono.suonati.isEmpty());
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void afterAWrongAnswerDigitsGoToTheHiddenTextUntilTheBinBringsTheBoxBack() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QVERIFY(scegliCifre(banco, forma, {0, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(1));
    QVERIFY(forma.ImgNo.isVisible());
    QCOMPARE(banco.suono.suonati, QStringList{banco.percorso(QStringLiteral("suoni/no.wav"))});
    QVERIFY(scegliCifre(banco, forma, {9}));
    QCOMPARE(forma.TestoInput.Text.get(), QStringLiteral("09"));
    QVERIFY(forma.TestoInput.TestoOutput.isVisible());
    QCOMPARE(forma.TestoInput.TestoOutput.text(), QStringLiteral("0"));
    QVERIFY(scegliCifre(banco, forma, {kCestino}));
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QVERIFY(forma.TestoInput.TestoInput.isVisible());
    QVERIFY(!forma.TestoInput.TestoOutput.isVisible());
    // The keys stay the keyboard's.
    QVERIFY(forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
  }

  // The pencil of the other forms asks for a click that a switch does not have.
  void aWrongAnswerShowsTheBinThatOpensTheBoxAndARightOneShowsNothing() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    const platform::TextBox& casella = forma.TestoInput.TestoOutput;
    QVERIFY(scegliCifre(banco, forma, {0, kConferma}));
    QVERIFY(casella.isVisible());
    QCOMPARE(casella.opener(), QStringLiteral("cestino"));
    QVERIFY(scegliCifre(banco, forma, {kCestino, 7, kConferma}));
    QVERIFY(casella.isVisible());
    QCOMPARE(casella.opener(), QString());
    QVERIFY(scegliCifre(banco, forma, {kAvanti, 0, kConferma}));
    QCOMPARE(casella.opener(), QStringLiteral("cestino"));
  }

  void confirmingAnEmptyBoxDoesNothing() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QVERIFY(banco.suono.suonati.isEmpty());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
  }

  void theWayOnIsOutOfReachBeforeARightAnswer() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QVERIFY(!prova::scegliAMano(banco, forma.TastieraNumericaScansione1, kAvanti));
  }

  void aClickOnTheShownAnswerAfterARightAnswerReturnsToEditing() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    QVERIFY(scegliCifre(banco, forma, {7, kConferma}));
    QVERIFY(forma.TestoInput.TestoOutput.isVisible());
    banco.clicca(forma.TestoInput.TestoOutput);
    QVERIFY(forma.TestoInput.TestoInput.isVisible());
    banco.tempo.advance(0.02);
    QVERIFY(forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
  }

  void aClickOfTheMouseOnAKeyWritesNothing() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    banco.clicca(forma.TastieraNumericaScansione1.PulsanteNumero[7]);
    QCOMPARE(forma.TestoInput.Text.get(), QString());
  }

  void thePrintPanelSilencesTheKeyboardAndClosingItDoesNotWakeIt() {
    Banco banco;
    FormaNumeriScansione& forma = apriTotale(banco);
    forma.mnuStampa.click();
    QVERIFY(!forma.TastieraNumericaScansione1.Timer1.isEnabled());
    banco.tempo.advance(1);
    QVERIFY(!forma.TastieraNumericaScansione1.PictureScansione.hasFocus());
    forma.CommandChiudi.click();
    QVERIFY(!forma.PictureStampa.isVisible());
    banco.tempo.advance(1);
    QVERIFY(!forma.TastieraNumericaScansione1.Timer1.isEnabled());
    banco.batti(Qt::Key_Space);
    banco.batti(Qt::Key_Return);
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(0));
    QCOMPARE(forma.TestoInput.Text.get(), QString());
    QCOMPARE(forma.EtOperazione.caption(), QStringLiteral(" 3 +  4 = "));
    // The next activation does.
    banco.sorte.scrivi({{4, 10}, {2, 5}});
    platform::LoadedForm(forma).runActivate();
    QVERIFY(scegliCifre(banco, forma, {5, kConferma}));
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(1));
  }

  void theKeyThatOpenedTheFormChoosesNothingAtItsRelease() {
    Banco banco;
    banco.ambiente->stato.ModalitaInput = 1;
    auto& menu = banco.apri<somme::FormMenuNumeri>(somme::forme::kFormMenuNumeri);
    menu.Command1[1].setFocus();
    banco.premi(Qt::Key_Return);
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormNumeriTotaleScansione"));
    auto& forma = banco.forma<FormaNumeriScansione>();
    banco.tempo.advance(0.1);
    banco.lascia(Qt::Key_Return);
    QCOMPARE(forma.TestoInput.Text.get(), QString());
  }

  void theAddendAloneIsRightAndTheWholeSumIsRebuilt() {
    Banco banco;
    auto& forma =
        apri<FormaNumeriScansione>(banco, somme::forme::kFormNumeriAddendoScansione, 1, {});
    QVERIFY(forma.withoutRow().empty());
    const somme::StatoCondiviso& stato = banco.ambiente->stato;
    QVERIFY(forma.EtOperazione.caption().contains(QStringLiteral(" + ____ = ")));
    QCOMPARE(forma.TestoInput.MaxLength.get(), qint16(2));
    const QString addendo = QString::number(stato.Addendo2);
    for (const QChar cifra : addendo) QVERIFY(scegliCifre(banco, forma, {cifra.digitValue()}));
    QVERIFY(scegliCifre(banco, forma, {kConferma}));
    QCOMPARE(stato.ContaEsatti, qint16(1));
    const QStringList parti = forma.EtOperazione.caption().simplified().split(u' ');
    QCOMPARE(parti, (QStringList{QString::number(stato.Addendo1), QStringLiteral("+"), addendo,
                                 QStringLiteral("="), QString::number(stato.Totale)}));
    QCOMPARE(forma.TastieraNumericaScansione1.pulsanteAcceso(), qint16(kAvanti));
  }

  void theKeysWithPicturesHaveSpokenNamesInBothLanguages() {
    const auto nome = [](Banco& banco, int tasto) {
      auto& forma = banco.forma<FormaNumeriScansione>();
      return forma.TastieraNumericaScansione1.PulsanteNumero[tasto].widget()->accessibleName();
    };
    Banco italiano;
    apriTotale(italiano);
    QCOMPARE(nome(italiano, kCestino), QStringLiteral("Cancella"));
    QCOMPARE(nome(italiano, kConferma), QStringLiteral("Conferma"));
    Banco inglese;
    inglese.ambiente->stato.LinguaCorrente = QStringLiteral("English");
    apriTotale(inglese);
    QCOMPARE(nome(inglese, kCestino), QStringLiteral("Clear"));
    QCOMPARE(nome(inglese, kAvanti), QStringLiteral("Next"));
    QCOMPARE(nome(inglese, 4), QStringLiteral("4"));
  }
};

const prova::Iscrizione<FormaNumeriScansioneTest, QApplication> kIscritta;

}  // namespace forma_numeri_scansione_test

#include "forma_numeri_scansione_test.moc"
