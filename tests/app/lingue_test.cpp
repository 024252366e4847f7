#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>

#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/schede_di_prova.h"

namespace lingue_test {

using prova::Banco;

namespace {

using Sezione = QMap<QString, QString>;

// A language file, read by itself.
QMap<QString, Sezione> leggi(const QString& percorso) {
  QMap<QString, Sezione> sezioni;
  QFile file(percorso);
  if (!file.open(QIODevice::ReadOnly)) return sezioni;
  QString sezione;
  for (const QString& riga : QString::fromUtf8(file.readAll()).split(u'\n')) {
    if (riga.startsWith(u'[')) {
      sezione = riga.mid(1, riga.indexOf(u']') - 1);
      sezioni[sezione];
    } else if (!riga.isEmpty() && !riga.startsWith(u';')) {
      const qsizetype uguale = riga.indexOf(u'=');
      sezioni[sezione].insert(riga.left(uguale), riga.mid(uguale + 1));
    }
  }
  return sezioni;
}

QString testo(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

// What a form's design says, as a language file has it: its caption, and each caption that says
// something and each tool tip of its controls. The languages' names are nobody's translation.
Sezione testiDelDisegno(platform::Form& forma) {
  QMap<QString, Sezione> perControllo;
  const auto traVirgolette = [](std::string_view parole) { return u'"' + testo(parole) + u'"'; };
  for (const std::span<const platform::Row> tavola : forma.design().tables) {
    for (const platform::Row& riga : tavola) {
      QString nome = testo(riga.name);
      if (nome == QStringLiteral("mnuLanguage")) continue;
      const platform::Control& controllo = riga.control(forma, riga.index);
      if (riga.index >= 0) nome += QStringLiteral("(%1)").arg(riga.index);
      Sezione& testi = perControllo[nome];
      testi.clear();
      if (controllo.hasCaption() && !testo(riga.look.caption).trimmed().isEmpty()) {
        testi.insert(nome + QStringLiteral(".Caption"), traVirgolette(riga.look.caption));
      }
      if (!riga.look.toolTip.empty()) {
        testi.insert(nome + QStringLiteral(".ToolTipText"), traVirgolette(riga.look.toolTip));
      }
    }
  }
  Sezione tutti;
  const std::string_view titolo = forma.design().caption;
  if (!titolo.empty()) {
    tutti.insert(forma.name() + QStringLiteral(".Caption"), traVirgolette(titolo));
  }
  for (const Sezione& testi : perControllo) tutti.insert(testi);
  return tutti;
}

QSet<QString> chiavi(const Sezione& sezione) {
  const QStringList nomi = sezione.keys();
  return {nomi.begin(), nomi.end()};
}

QString elenco(QSet<QString> chiavi) {
  QStringList nomi(chiavi.begin(), chiavi.end());
  nomi.sort();
  return nomi.join(QStringLiteral(", "));
}

}  // namespace

// The language files against the forms' designs, in both directions.
class LingueTest : public QObject {
  Q_OBJECT

  static void lingue() {
    QTest::addColumn<QString>("lingua");
    const Banco banco({640, 480});
    for (const QString& nome : QDir(banco.cartella.path()).entryList({QStringLiteral("*.lng")})) {
      QTest::newRow(qPrintable(nome)) << nome;
    }
  }

 private Q_SLOTS:
  void fiveLanguagesAreThere() {
    const Banco banco({640, 480});
    for (const char* nome : {"Deutsch", "English", "Español", "Français", "Italiano"}) {
      QVERIFY2(QFile::exists(banco.percorso(QString::fromUtf8(nome) + QStringLiteral(".lng"))),
               nome);
    }
  }

  void everyFormHasASectionWithTheKeysOfItsDesignAndNoOther_data() { lingue(); }
  void everyFormHasASectionWithTheKeysOfItsDesignAndNoOther() {
    QFETCH(QString, lingua);
    Banco banco({640, 480});
    const QMap<QString, Sezione> file = leggi(banco.percorso(lingua));
    QString mancano;
    QString avanzano;
    for (const std::string_view nome : somme::NomiDelleForme()) {
      const std::shared_ptr<platform::Form> forma = somme::CreaForma(*banco.ambiente, nome);
      const QSet<QString> attesi = chiavi(testiDelDisegno(*forma));
      const QSet<QString> trovati = chiavi(file.value(forma->name()));
      if (!file.contains(forma->name())) mancano += QStringLiteral(" [%1]").arg(forma->name());
      const QSet<QString> senza = attesi - trovati;
      const QSet<QString> vane = trovati - attesi;
      if (!senza.isEmpty()) mancano += QStringLiteral(" %1: %2").arg(forma->name(), elenco(senza));
      if (!vane.isEmpty()) avanzano += QStringLiteral(" %1: %2").arg(forma->name(), elenco(vane));
    }
    QVERIFY2(mancano.isEmpty(), qPrintable(QStringLiteral("missing:") + mancano));
    QVERIFY2(avanzano.isEmpty(), qPrintable(QStringLiteral("of no control:") + avanzano));
  }

  void theItalianTextsAreThoseOfTheDesigns() {
    Banco banco({640, 480});
    const QMap<QString, Sezione> file = leggi(banco.percorso(QStringLiteral("Italiano.lng")));
    QString altri;
    for (const std::string_view nome : somme::NomiDelleForme()) {
      const std::shared_ptr<platform::Form> forma = somme::CreaForma(*banco.ambiente, nome);
      const Sezione sezione = file.value(forma->name());
      const Sezione attesi = testiDelDisegno(*forma);
      for (auto voce = attesi.begin(); voce != attesi.end(); ++voce) {
        if (sezione.value(voce.key()) == voce.value()) continue;
        altri += QStringLiteral(" %1: %2=%3").arg(forma->name(), voce.key(), voce.value());
      }
    }
    QVERIFY2(altri.isEmpty(), qPrintable(QStringLiteral("in the designs:") + altri));
  }

  void everySectionBelongsToAForm_data() { lingue(); }
  void everySectionBelongsToAForm() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QSet<QString> note{QStringLiteral("Strings"),
                       QStringLiteral("MessageBox"),
                       QStringLiteral("PageSetup"),
                       QStringLiteral("Printers"),
                       QStringLiteral("Quantita"),
                       QStringLiteral("Palline"),
                       QStringLiteral("TastieraNumericaScansione"),
                       QStringLiteral("TastieraHDUScansione")};
    for (const std::string_view nome : somme::NomiDelleForme()) note.insert(testo(nome));
    const QStringList sezioni = leggi(banco.percorso(lingua)).keys();
    const QSet<QString> ignote = QSet<QString>(sezioni.begin(), sezioni.end()) - note;
    QVERIFY2(ignote.isEmpty(), qPrintable(elenco(ignote)));
  }

  void everyTextIsInQuotesAndSaysSomething_data() { lingue(); }
  void everyTextIsInQuotesAndSaysSomething() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    const QMap<QString, Sezione> file = leggi(banco.percorso(lingua));
    for (const Sezione& sezione : file) {
      for (auto voce = sezione.begin(); voce != sezione.end(); ++voce) {
        const QString& valore = voce.value();
        QVERIFY2(valore.size() > 2 && valore.startsWith(u'"') && valore.endsWith(u'"') &&
                     !valore.mid(1).chopped(1).trimmed().isEmpty(),
                 qPrintable(voce.key() + u'=' + valore));
      }
    }
  }

  void theFortyStringsAreThereAndNoOther_data() { lingue(); }
  void theFortyStringsAreThereAndNoOther() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QStringList attesi;
    for (int i = 1; i <= 40; ++i) attesi.append(QStringLiteral("%1").arg(i, 4, 10, QChar(u'0')));
    QCOMPARE(leggi(banco.percorso(lingua)).value(QStringLiteral("Strings")).keys(), attesi);
  }

  void theWordsOfTheMessageBoxesAreThere_data() { lingue(); }
  void theWordsOfTheMessageBoxesAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QCOMPARE(leggi(banco.percorso(lingua)).value(QStringLiteral("MessageBox")).keys(),
             QStringList({QStringLiteral("No"), QStringLiteral("Ok"), QStringLiteral("Si")}));
  }

  void theWordsOfThePageSetUpAreThere_data() { lingue(); }
  void theWordsOfThePageSetUpAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QCOMPARE(
        leggi(banco.percorso(lingua)).value(QStringLiteral("PageSetup")).keys(),
        QStringList({QStringLiteral("AColori"), QStringLiteral("Annulla"), QStringLiteral("Carta"),
                     QStringLiteral("Colore"), QStringLiteral("InGrigio"),
                     QStringLiteral("Orientamento"), QStringLiteral("Orizzontale"),
                     QStringLiteral("Titolo"), QStringLiteral("Verticale")}));
  }

  void theWordsOfAWaitForAPrinterAreThere_data() { lingue(); }
  void theWordsOfAWaitForAPrinterAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QCOMPARE(leggi(banco.percorso(lingua)).value(QStringLiteral("Printers")).keys(),
             QStringList{QStringLiteral("Attesa")});
  }

  void theWordsForWhatStandsOnABoardAreThere_data() { lingue(); }
  void theWordsForWhatStandsOnABoardAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    const QStringList chiavi =
        leggi(banco.percorso(lingua)).value(QStringLiteral("Quantita")).keys();
    QCOMPARE(chiavi.join(u' '), QStringLiteral("Centinaia Centinaio Decina Decine Migliaia "
                                               "Migliaio UnaUnita Unita Vuoto"));
  }

  void theWordsForAPressOfABeadAreThere_data() { lingue(); }
  void theWordsForAPressOfABeadAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QCOMPARE(leggi(banco.percorso(lingua)).value(QStringLiteral("Palline")).keys(),
             QStringList({QStringLiteral("DaMettere"), QStringLiteral("DaTogliere")}));
  }

  void theNamesOfTheScanningKeysAreThere_data() { lingue(); }
  void theNamesOfTheScanningKeysAreThere() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    const QMap<QString, Sezione> file = leggi(banco.percorso(lingua));
    QCOMPARE(file.value(QStringLiteral("TastieraNumericaScansione")).keys().join(u' '),
             QStringLiteral("PulsanteNumero(10).ToolTipText PulsanteNumero(11).ToolTipText "
                            "PulsanteNumero(12).ToolTipText PulsanteNumero(13).ToolTipText"));
    QCOMPARE(file.value(QStringLiteral("TastieraHDUScansione")).keys().join(u' '),
             QStringLiteral("Pulsante(4).ToolTipText Pulsante(5).ToolTipText"));
  }

  void noFileIsTooLargeToBeReadBySections_data() { lingue(); }
  void noFileIsTooLargeToBeReadBySections() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    QVERIFY(QFileInfo(banco.percorso(lingua)).size() <= 64000);
  }

  void twoAccessKeysOfOneFormNeverCollide_data() { lingue(); }
  void twoAccessKeysOfOneFormNeverCollide() {
    QFETCH(QString, lingua);
    const Banco banco({640, 480});
    const QMap<QString, Sezione> file = leggi(banco.percorso(lingua));
    for (auto sezione = file.begin(); sezione != file.end(); ++sezione) {
      QMap<QChar, QString> presi;
      for (auto voce = sezione->begin(); voce != sezione->end(); ++voce) {
        const qsizetype segno = voce.value().indexOf(u'&');
        if (segno < 0) continue;
        const QChar tasto = voce.value()[segno + 1].toUpper();
        QVERIFY2(!presi.contains(tasto),
                 qPrintable(QStringLiteral("%1: %2 and %3")
                                .arg(sezione.key(), presi.value(tasto), voce.key())));
        presi.insert(tasto, voce.key());
      }
    }
  }
};

const prova::Iscrizione<LingueTest, QApplication> kIscritta;

}  // namespace lingue_test

#include "lingue_test.moc"
