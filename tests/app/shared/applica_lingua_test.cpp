#include <QApplication>
#include <algorithm>
#include <ctime>

#include "app/form_avvio.h"
#include "app/form_info.h"
#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "lingua_di_prova.h"
#include "support/iscrizione.h"

namespace applica_lingua_test {

using prova::Banco;
using prova::kLinguaDiProva;
using prova::parla;
using somme::FormaBarrePulsanti;
using somme::FormAvvio;
using somme::FormInfo;
using somme::TestoLingua;
using somme::forme::kFormAvvio;
using somme::forme::kFormBarre10;
using somme::forme::kFormInfo;

namespace {

// The memory that the process holds now, in MiB.
double memoria() {
  QFile statm(QStringLiteral("/proc/self/statm"));
  if (!statm.open(QIODevice::ReadOnly)) return 0;
  return statm.readAll().split(' ').value(1).toDouble() * 4096 / (1024 * 1024);
}

}  // namespace

// The language files, as the forms show them.
class ApplicaLinguaTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void aFormShowsTheTextsOfItsSection() {
    Banco banco;
    parla(banco,
          "[FormAvvio]\nFormAvvio.Caption=\"Titolo\"\nFormAvvio.Tag=\"segno\"\n"
          "BottoneAvvio.Caption=\"Via\"\nBottoneAvvio.ToolTipText=\"Qui si parte\"\n"
          "BottoneAvvio.Tag=\"7\"\nLabel2(0).Caption=\"Addizioni\"\n"
          "Label2(0).ToolTipText=\"Il nome\"\nLabel2(0).Tag=\"8\"\n"
          "Image1.ToolTipText=\"Figura\"\n");
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.caption(), QStringLiteral("Titolo"));
    QCOMPARE(banco.ambiente->fondo.window().windowTitle(), QStringLiteral("Titolo"));
    QCOMPARE(forma.tag(), QStringLiteral("segno"));
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("Via"));
    QCOMPARE(forma.BottoneAvvio.toolTip(), QStringLiteral("Qui si parte"));
    QCOMPARE(forma.BottoneAvvio.widget()->toolTip(), QStringLiteral("Qui si parte"));
    QCOMPARE(forma.BottoneAvvio.tag(), QStringLiteral("7"));
    QCOMPARE(forma.Label2[0].caption(), QStringLiteral("Addizioni"));
    QCOMPARE(forma.Label2[0].toolTip(), QStringLiteral("Il nome"));
    QCOMPARE(forma.Label2[0].tag(), QStringLiteral("8"));
    QCOMPARE(forma.Image1.toolTip(), QStringLiteral("Figura"));
    // What has no key keeps the text of its design.
    QCOMPARE(forma.Label1.caption(), QStringLiteral("13 ottobre 2007"));
    QCOMPARE(forma.Image2.toolTip(), QStringLiteral("Un abaco"));
  }

  void menuItemsAreControlsForTheLanguage() {
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    parla(banco, "[FormBarre10]\nMenuAzzera.Caption=\"Da capo\"\n");
    const FormaBarrePulsanti& forma = banco.apri<FormaBarrePulsanti>(kFormBarre10);
    QCOMPARE(forma.MenuAzzera.caption(), QStringLiteral("Da capo"));
  }

  void theToolTipKeyOfAFormHasNoEffect() {
    Banco banco;
    parla(banco, "[FormAvvio]\nFormAvvio.ToolTipText=\"niente\"\n");
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QVERIFY(forma.page()->toolTip().isEmpty());
  }

  void aKeyThatIsNotThereBlanksCaptionAndTagOfTheFormAlone() {
    Banco banco;
    parla(banco, "[FormAvvio]\nBottoneAvvio.Caption=\"Via\"\n");
    FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.caption(), QString());
    QCOMPARE(forma.Label2[0].caption(), QStringLiteral("Somme"));
    QCOMPARE(forma.Image1.toolTip(), QStringLiteral("Un amico fatto di blocchi"));
    forma.setTag(QStringLiteral("di prima"));
    forma.Label1.setTag(QStringLiteral("di prima"));
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(forma.tag(), QString());
    QCOMPARE(forma.Label1.tag(), QStringLiteral("di prima"));
    // A caption that is empty is not set again, whatever the file has.
    parla(banco, "[FormAvvio]\nFormAvvio.Caption=\"Titolo\"\n");
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(forma.caption(), QString());
  }

  void anEmptyValueBlanksTheFormAndLeavesItsControls() {
    Banco banco;
    parla(banco, "[FormAvvio]\nFormAvvio.Caption=\"\"\nBottoneAvvio.Caption=\"\"\n");
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.caption(), QString());
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("Avvio"));
  }

  void aFileThatIsMissingLeavesEverythingAsTheDesignHasIt() {
    Banco banco;
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Nessuna");
    FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.caption(), QStringLiteral("Esercitazioni sulle somme"));
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("Avvio"));
    forma.setTag(QStringLiteral("di prima"));
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(forma.tag(), QStringLiteral("di prima"));
    QCOMPARE(TestoLingua(*banco.ambiente, "0001"), QString());
  }

  void aFileThatChangesInTheMiddleOfAFormIsNoHarm() {
    Banco banco;
    parla(banco, "[FormBarre10]\nPulsanteNumero(0).Caption=\"zero\"\n");
    banco.ambiente->stato.LimiteEsercizio = 10;
    banco.tempo.after(0, [&] {
      banco.tempo.after(0, [&] { QFile::remove(banco.percorso(QStringLiteral("Prova.lng"))); });
    });
    const FormaBarrePulsanti& forma = banco.apri<FormaBarrePulsanti>(kFormBarre10);
    QCOMPARE(forma.PulsanteNumero[0].caption(), QStringLiteral("0"));
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  void brokenFilesLeaveTheDesignAndShowTheForm_data() {
    QTest::addColumn<QByteArray>("testo");
    QTest::addColumn<QString>("avvio");
    const QString design = QStringLiteral("Avvio");
    QTest::newRow("empty") << QByteArray() << design;
    QTest::newRow("cut in a line") << QByteArray("[FormAvvio]\nBottoneAvvio.Cap") << design;
    QTest::newRow("cut in a value")
        << QByteArray("[FormAvvio]\nBottoneAvvio.Caption=\"Parti") << QStringLiteral("\"Parti");
    QTest::newRow("cut in a section") << QByteArray("[FormAvv") << design;
    QTest::newRow("Windows-1252") << QByteArray(
                                         "[FormAvvio]\nBottoneAvvio.Caption=\"Perch\xe9 no\"\n")
                                  << QStringLiteral("Perché no");
    QTest::newRow("UTF-8 with its mark")
        << QByteArray("\xef\xbb\xbf[FormAvvio]\nBottoneAvvio.Caption=\"Perch\xc3\xa9 no\"\n")
        << QStringLiteral("Perché no");
    QTest::newRow("noughts") << QByteArray(5000, '\0') << design;
    QTest::newRow("noise") << QByteArray("\xff\xfe\x00\x81[[==\"\"]]\n\r\r\n=;", 17) << design;
    QByteArray many = "[FormAvvio]\n";
    for (int i = 0; i < 1000; ++i) {
      many += "BottoneAvvio.Caption=\"" + QByteArray::number(i) + "\"\n";
    }
    QTest::newRow("a key a thousand times") << many << QStringLiteral("0");
    QTest::newRow("a key three thousand times") << many + many + many << QStringLiteral("0");
    QTest::newRow("one long line") << "[FormAvvio]\n" + QByteArray(200000, 'x') << design;
  }
  void brokenFilesLeaveTheDesignAndShowTheForm() {
    QFETCH(QByteArray, testo);
    QFETCH(QString, avvio);
    Banco banco;
    parla(banco, testo);
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.BottoneAvvio.caption(), avvio);
    QVERIFY(forma.page()->isVisible());
    QVERIFY(banco.messaggi.mostrati.empty());
  }

  // The time of the processor, not of the wall: other programs are no part of it.
  void aFileOfAHundredMegabytesStillShowsAFormWithinASecond() {
#if defined(__SANITIZE_ADDRESS__)
    constexpr double kAllowed = 10;
#else
    constexpr double kAllowed = 1;
#endif
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    QByteArray part;
    while (part.size() < 1000000) {
      part += "Altro" + QByteArray::number(part.size()) + ".Caption=\"un testo di una riga\"\n";
    }
    QFile file(banco.percorso(QStringLiteral("Prova.lng")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 100; ++i) file.write(part);
    file.write("PulsanteAiuto.Caption=\"l'ultima riga\"\n");
    file.close();
    banco.ambiente->stato.LinguaCorrente = kLinguaDiProva;

    const double memory = memoria();
    const std::clock_t start = std::clock();
    const FormaBarrePulsanti& forma = banco.apri<FormaBarrePulsanti>(kFormBarre10);
    const double seconds = double(std::clock() - start) / CLOCKS_PER_SEC;
    const double grown = memoria() - memory;
    QCOMPARE(forma.PulsanteAiuto.caption(), QStringLiteral("l'ultima riga"));
    qInfo("%.2f s, %.0f MiB", seconds, grown);
    QVERIFY2(seconds < kAllowed, QByteArray::number(seconds));
    QVERIFY2(grown < 60 * kAllowed, QByteArray::number(grown));
  }

  void eventsRunAfterEachControlInTheOrderOfTheForm() {
    Banco banco;
    banco.ambiente->stato.LimiteEsercizio = 10;
    FormaBarrePulsanti& forma = banco.apri<FormaBarrePulsanti>(kFormBarre10);
    QByteArray testo = "[FormBarre10]\n";
    for (const platform::Control* controllo : forma.controls()) {
      testo += controllo->name().toUtf8() + ".Tag=\"letto\"\n";
    }
    parla(banco, testo);
    // At each yield: how many controls have been reached, and whether they are the first ones.
    std::vector<std::size_t> reached;
    bool inOrder = true;
    const std::function<void()> look = [&] {
      const auto count = std::size_t(std::count_if(
          forma.controls().begin(), forma.controls().end(), [](const platform::Control* controllo) {
            return controllo->tag() == QStringLiteral("letto");
          }));
      for (std::size_t i = 0; i < forma.controls().size(); ++i) {
        const bool read = forma.controls()[i]->tag() == QStringLiteral("letto");
        inOrder = inOrder && read == (i < count);
      }
      reached.push_back(count);
      banco.tempo.after(0, look);
    };
    banco.tempo.after(0, look);
    const int before = banco.tempo.yields();
    somme::ApplicaLingua(*banco.ambiente, forma);
    const std::size_t controls = forma.controls().size();
    QCOMPARE(std::size_t(banco.tempo.yields() - before), controls);
    QCOMPARE(reached.size(), controls);
    for (std::size_t i = 0; i < controls; ++i) QCOMPARE(reached[i], i + 1);
    QVERIFY(inOrder);
  }

  void captionAndTagOfTheFormComeBeforeItsControls() {
    Banco banco;
    FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    parla(banco, "[FormAvvio]\nFormAvvio.Caption=\"Titolo\"\nFormAvvio.Tag=\"segno\"\n");
    QString caption;
    QString tag;
    banco.tempo.after(0, [&] {
      caption = forma.caption();
      tag = forma.tag();
    });
    somme::ApplicaLingua(*banco.ambiente, forma);
    QCOMPARE(caption, QStringLiteral("Titolo"));
    QCOMPARE(tag, QStringLiteral("segno"));
  }

  void aFormThatIsLeftWhileItsLanguageIsReadIsNotReadToTheEnd() {
    Banco banco;
    FormInfo& forma = banco.apri<FormInfo>(kFormInfo);
    const auto keep = forma.shared_from_this();
    parla(banco, "[FormInfo]\nCommand1.Caption=\"mai\"\n");
    banco.tempo.after(0, [&] { banco.ambiente->fondo.forms().unload(forma); });
    QVERIFY(!forma.run([&] { somme::ApplicaLingua(*banco.ambiente, forma); }));
    QCOMPARE(forma.Command1.caption(), QStringLiteral("Chiudi"));
  }

  void theLanguageReachesHiddenFormsToo() {
    Banco banco;
    banco.mostra(kFormInfo);
    parla(banco, "[FormAvvio]\nBottoneAvvio.Caption=\"Via\"\n");
    const auto tutte = banco.ambiente->fondo.forms().all();
    QCOMPARE(tutte.size(), std::size_t(2));
    for (const auto& forma : tutte) somme::ApplicaLingua(*banco.ambiente, *forma);
    const auto& avvio = static_cast<FormAvvio&>(banco.ambiente->fondo.forms().loaded(kFormAvvio));
    QCOMPARE(avvio.BottoneAvvio.caption(), QStringLiteral("Via"));
  }
};

const prova::Iscrizione<ApplicaLinguaTest, QApplication> kIscritta;

}  // namespace applica_lingua_test

#include "applica_lingua_test.moc"
