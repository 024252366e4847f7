#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <stdexcept>

#include "app/disegno_scritto.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/schede_di_prova.h"

namespace disegni_test {

using prova::Banco;

// Every form's design against a table of its own: what the teacher sees when a form comes up.
class DisegniTest : public QObject {
  Q_OBJECT

  static QString tabella(const QString& nome) {
    return QStringLiteral(DISEGNI "/%1.txt").arg(nome);
  }

  // What differs between the design of a form and a table of it, after a change of the table.
  static QStringList dopo(const char* prima, const char* poi) {
    Banco banco({640, 480});
    const QTemporaryDir cartella;
    const QString altra = cartella.filePath(QStringLiteral("a.txt"));
    QFile vera(tabella(QStringLiteral("FormBarre10")));
    QFile file(altra);
    if (!vera.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)) qFatal("no files");
    const QByteArray testo = vera.readAll();
    if (testo.count(prima) != 1) qFatal("what is to be changed is not there once");
    file.write(QByteArray(testo).replace(prima, poi));
    file.close();
    const auto forma = somme::CreaForma(*banco.ambiente, "FormBarre10");
    return prova::Differenze(prova::Scritto(forma->design()), prova::Letto(altra));
  }

 private Q_SLOTS:
  void everyFormIsAsItsTableSays_data() {
    QTest::addColumn<QString>("nome");
    for (const std::string_view nome : somme::NomiDelleForme()) {
      const QString testo = QString::fromUtf8(nome.data(), qsizetype(nome.size()));
      QTest::newRow(qPrintable(testo)) << testo;
    }
  }
  void everyFormIsAsItsTableSays() {
    QFETCH(QString, nome);
    Banco banco({640, 480});
    const auto forma = somme::CreaForma(*banco.ambiente, nome.toStdString());
    const QStringList diverse =
        prova::Differenze(prova::Scritto(forma->design()), prova::Letto(tabella(nome)));
    QVERIFY2(diverse.isEmpty(), qPrintable(nome + u'\n' + diverse.join(u'\n')));
  }

  void everyTableIsOfAForm() {
    QStringList file = QDir(QStringLiteral(DISEGNI)).entryList({QStringLiteral("*.txt")});
    QStringList forme;
    for (const std::string_view nome : somme::NomiDelleForme()) {
      forme << QString::fromUtf8(nome.data(), qsizetype(nome.size())) + QStringLiteral(".txt");
    }
    file.sort();
    forme.sort();
    QCOMPARE(file, forme);
  }

  void aTableThatCannotBeReadIsTold_data() {
    QTest::addColumn<QByteArray>("prima");
    QTest::addColumn<QByteArray>("poi");
    QTest::newRow("too few columns") << QByteArray(" 11145 7650 255,255,192 ") << QByteArray(" 1 ");
    QTest::newRow("a word that means nothing") << QByteArray("checked") << QByteArray("cheked");
    QTest::newRow("a control named again") << QByteArray("\nn1 ") << QByteArray("\nn2 ");
    QTest::newRow("a caption without its end") << QByteArray("\"&Esci\"") << QByteArray("\"&Esci");
  }
  void aTableThatCannotBeReadIsTold() {
    QFETCH(QByteArray, prima);
    QFETCH(QByteArray, poi);
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, dopo(prima.constData(), poi.constData()));
  }

  void whatDiffersIsToldWithItsControlAndItsColumn_data() {
    QTest::addColumn<QByteArray>("prima");
    QTest::addColumn<QByteArray>("poi");
    QTest::addColumn<QString>("detto");
    const auto riga = [](const char* nome, const char* prima, const char* poi, const char* detto) {
      QTest::newRow(nome) << QByteArray(prima) << QByteArray(poi) << QString::fromUtf8(detto);
    };
    riga("a place", " 3255 ", " 3256 ",
         "PulsanteNumero(3), left: 3255, not 3256 as the table says");
    riga("the form", "11145 ", "11144 ", "the form, width: 11145, not 11144 as the table says");
    riga("a caption", "\"&aiuto\"", "\"a&iuto\"",
         "PulsanteAiuto, caption: &aiuto, not a&iuto as the table says");
    riga("a font", "Label3              360 5760  5175    480 Tahoma/9.75",
         "Label3 360 5760 5175 480 Tahoma/9.75/bold",
         "Label3, font: Tahoma/9.75, not Tahoma/9.75/bold as the table says");
    riga("a colour", "192,255,192", "192,255,191",
         "PictureStampa, ground: 192,255,192, not 192,255,191 as the table says");
    riga("a word", "hidden picture=no", "picture=no",
         "ImgNo, hidden: yes, not - as the table says");
    riga("a container", "6975 Tahoma/12         -   -           PictureStampa",
         "6975 Tahoma/12 - - Picture1",
         "TestoStampa, in: PictureStampa, not Picture1 as the table says");
    riga("a control that the table lacks", "\nPulsanteAiuto ", "\nPulsanteAltro ",
         "PulsanteAiuto: not in the table");
    riga("a control that the design lacks", "\nPulsanteAiuto ", "\nPulsanteAltro ",
         "PulsanteAltro: not in the design");
    riga("the order", "\nn1 ", "\nmnuAltro 0 0 0 0 Tahoma/9.75 - - -\nn1 ",
         "n1, order: the table has mnuAltro here");
  }
  void whatDiffersIsToldWithItsControlAndItsColumn() {
    QFETCH(QByteArray, prima);
    QFETCH(QByteArray, poi);
    QFETCH(QString, detto);
    const QStringList diverse = dopo(prima.constData(), poi.constData());
    QVERIFY2(diverse.contains(detto), qPrintable(diverse.join(u'\n')));
  }
};

const prova::Iscrizione<DisegniTest, QApplication> kIscritta;

}  // namespace disegni_test

#include "disegni_test.moc"
