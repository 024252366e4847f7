#include "app/shared/modulo_ini.h"

#include <QApplication>
#include <QTest>

#include "support/iscrizione.h"

namespace modulo_ini_test {

// The settings of the start.
class ModuloIniTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void theSettingsAreThoseOfTheStart() {
    somme::StatoCondiviso stato;
    stato.SuoniAttivi = false;
    stato.CursoreDiSistema = true;
    stato.ModalitaInput = somme::kHelpiKeys;
    stato.TempoScansione = 60;
    somme::ImpostaDefault(stato);
    QCOMPARE(stato.SuoniAttivi, true);
    QCOMPARE(stato.CursoreDiSistema, false);
    QCOMPARE(stato.ModalitaInput, qint16(0));
    QCOMPARE(stato.TempoScansione, qint16(4));
  }

  void nothingElseIsTouched() {
    somme::StatoCondiviso stato;
    stato.ContaEsatti = 5;
    stato.LinguaCorrente = QStringLiteral("English");
    somme::ImpostaDefault(stato);
    QCOMPARE(stato.ContaEsatti, qint16(5));
    QCOMPARE(stato.LinguaCorrente, QStringLiteral("English"));
  }

  void theSharedStateBeginsAtNothing() {
    const somme::StatoCondiviso stato;
    QCOMPARE(stato.ContaEsatti, qint16(0));
    QCOMPARE(stato.ContaErrati, qint16(0));
    QCOMPARE(stato.LimiteEsercizio, 0);
    QCOMPARE(stato.TipoEsercizio, qint16(0));
    QCOMPARE(stato.Totale, qint16(0));
    QCOMPARE(stato.Addendo1, qint16(0));
    QCOMPARE(stato.Addendo2, qint16(0));
    QCOMPARE(stato.RisultatoTabella, 0);
    QVERIFY(stato.TitoloEsercizio.isEmpty());
    QVERIFY(stato.LinguaCorrente.isEmpty());
    QVERIFY(stato.SuoniAttivi);
  }
};

const prova::Iscrizione<ModuloIniTest, QApplication> kIscritta;

}  // namespace modulo_ini_test

#include "modulo_ini_test.moc"
