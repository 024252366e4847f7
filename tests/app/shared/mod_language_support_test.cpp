#include "app/shared/mod_language_support.h"

#include <QApplication>

#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/shared/nomi_forme.h"
#include "lingua_di_prova.h"
#include "platform/base/run_time_error.h"
#include "platform/forms/qt_message_boxes.h"
#include "support/iscrizione.h"

namespace mod_language_support_test {

using prova::Banco;
using prova::kLinguaDiProva;
using prova::parla;
using somme::FormAvvio;
using somme::FormInfo;
using somme::LeggiChiave;
using somme::TestoLingua;
using somme::forme::kFormAvvio;
using somme::forme::kFormInfo;

namespace {

// The text filled up to so many bytes with a comment.
QByteArray lungo(QByteArray testo, qsizetype byte) {
  testo += "; ";
  testo += QByteArray(byte - testo.size() - 1, 'x') + '\n';
  return testo;
}

QString leggi(Banco& banco, const char* sezione, const char* chiave) {
  return LeggiChiave(*banco.ambiente, banco.percorso(QStringLiteral("Prova.lng")),
                     QLatin1String(sezione), QLatin1String(chiave));
}

}  // namespace

// The language files and the settings, key by key.
class ModLanguageSupportTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFileOf64000BytesIsReadBySectionsAndOneOf64001ByLines() {
    Banco banco;
    const QByteArray testo = "[A]\nKey=\"first\"\n[B]\nKey=\"second\"\nKeyLong=\"third\"\n";
    banco.metti(QStringLiteral("Prova.lng"), lungo(testo, 64000));
    QCOMPARE(QFileInfo(banco.percorso(QStringLiteral("Prova.lng"))).size(), 64000);
    QCOMPARE(leggi(banco, "B", "Key"), QStringLiteral("second"));
    QCOMPARE(leggi(banco, "b", "KEY"), QStringLiteral("second"));
    banco.metti(QStringLiteral("Prova.lng"), lungo(testo, 64001));
    QCOMPARE(leggi(banco, "B", "Key"), QStringLiteral("first"));
    QCOMPARE(leggi(banco, "B", "KEY"), QString());
    // The known price: a key that begins a longer one matches it, with what stands there.
    QCOMPARE(leggi(banco, "B", "KeyL"), QStringLiteral("g=\"third"));
  }

  void aValueInQuotesComesBackWithoutThemInBothModes() {
    Banco banco;
    const QByteArray testo = "[Strings]\n0001=\"tra virgolette\"\n";
    for (const qsizetype byte : {64000, 64001}) {
      parla(banco, lungo(testo, byte));
      QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QStringLiteral("tra virgolette"));
    }
  }

  void aValueHas511CharactersAtMost() {
    Banco banco;
    parla(banco, "[FormInfo]\nCommand1.Caption=\"" + QByteArray(600, 'a') + "\"\n");
    const FormInfo& forma = banco.apri<FormInfo>(kFormInfo);
    QVERIFY(forma.Command1.caption().size() <= 511);
    QVERIFY(forma.Command1.caption().size() >= 510);
  }

  void withoutTheSettingsEveryStringIsEmptyAndNothingFails() {
    Banco banco;
    QFile::remove(banco.percorso(QStringLiteral("LangSetting.ini")));
    banco.ambiente->stato.LinguaCorrente.clear();
    QCOMPARE(TestoLingua(*banco.ambiente, "0002"), QString());
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.caption(), QStringLiteral("Esercitazioni sulle somme"));
    QVERIFY(banco.messaggi.mostrati.empty());
    bool absent = false;
    try {
      (void)somme::LinguaScelta(*banco.ambiente);
    } catch (const platform::RunTimeError& error) {
      absent = error.number() == platform::RunTimeError::FileNotFound;
    }
    QVERIFY(absent);
  }

  void settingsWithoutTheKeyGiveNoLanguage() {
    Banco banco;
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\n");
    banco.ambiente->stato.LinguaCorrente.clear();
    QCOMPARE(somme::LinguaScelta(*banco.ambiente), QString());
    QCOMPARE(TestoLingua(*banco.ambiente, "0002"), QString());
  }

  void theChosenLanguageIsReadOnceAndThenRemembered() {
    Banco banco;
    parla(banco, "[Strings]\n0002=\"voce\"\n");
    banco.ambiente->stato.LinguaCorrente.clear();
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=Prova\n");
    QCOMPARE(TestoLingua(*banco.ambiente, "0002"), QStringLiteral("voce"));
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=Italiano\n");
    QCOMPARE(TestoLingua(*banco.ambiente, "0002"), QStringLiteral("voce"));
  }

  void theChoiceIsWrittenAtOnceAndEveryOtherByteStays() {
    Banco banco;
    banco.metti(QStringLiteral("LangSetting.ini"),
                "; note\r\n[Other]\r\nx=1\r\n[Language]\r\nCurrentLanguage=Italiano\r\n");
    somme::ScriviLinguaScelta(*banco.ambiente, QStringLiteral("Due parole"));
    QFile file(banco.percorso(QStringLiteral("LangSetting.ini")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("; note\r\n[Other]\r\nx=1\r\n[Language]\r\n"
                                        "CurrentLanguage=Due parole\r\n"));
    QCOMPARE(somme::LinguaScelta(*banco.ambiente), QStringLiteral("Due parole"));
  }

  void aChoiceThatCannotBeWrittenIsSilentlyNotKept() {
    Banco banco;
    somme::ScriviChiave(QStringLiteral("/nowhere/at/all/LangSetting.ini"),
                        QStringLiteral("Language"), QStringLiteral("CurrentLanguage"),
                        kLinguaDiProva);
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void aFileThatChangesWhileTheProgramRunsIsSeenAtTheNextRead() {
    Banco banco;
    parla(banco, "[Strings]\n0001=\"prima\"\n[FormAvvio]\nBottoneAvvio.Caption=\"prima\"\n");
    QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QStringLiteral("prima"));
    FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    parla(banco, "[Strings]\n0001=\"dopo\"\n[FormAvvio]\nBottoneAvvio.Caption=\"dopo\"\n");
    QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QStringLiteral("dopo"));
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("prima"));
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("dopo"));
    // And one that vanishes leaves the texts as they are.
    QFile::remove(banco.percorso(QStringLiteral("Prova.lng")));
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("dopo"));
    QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QString());
  }

  void theWordsOfMessageBoxesFollowTheLanguageAndFallBackToItalian() {
    Banco banco;
    parla(banco, "[MessageBox]\nOk=\"Fine\"\nSi=\"Yes\"\n");
    platform::ButtonWords words = somme::ParoleMessaggi(*banco.ambiente);
    QCOMPARE(words.ok, QStringLiteral("Fine"));
    QCOMPARE(words.yes, QStringLiteral("Yes"));
    QCOMPARE(words.no, QStringLiteral("No"));
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Nessuna");
    words = somme::ParoleMessaggi(*banco.ambiente);
    QCOMPARE(words.ok, QStringLiteral("OK"));
    QCOMPARE(words.yes, QStringLiteral("Sì"));
    QCOMPARE(words.no, QStringLiteral("No"));
  }

  void theProgramsFolderMayEndWithASeparator() {
    Banco banco;
    parla(banco, "[Strings]\n0001=\"voce\"\n");
    banco.ambiente->servizi.cartella += u'/';
    QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QStringLiteral("voce"));
  }
};

const prova::Iscrizione<ModLanguageSupportTest, QApplication> kIscritta;

}  // namespace mod_language_support_test

#include "mod_language_support_test.moc"
