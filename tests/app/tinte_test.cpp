#include <QColor>
#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

#include "app/disegno_menu.h"
#include "platform/forms/text_block.h"
#include "support/iscrizione.h"

namespace tinte_test {

using platform::Rgb;
using namespace somme::programma::disegno;

// The families have the tints of the program's menus wherever they are shown: in the manuals and at
// the top of README.
class TinteTest : public QObject {
  Q_OBJECT

  static QString percorso(const char* nome) {
    return QStringLiteral(SORGENTI "/%1").arg(QLatin1String(nome));
  }
  static QString letto(const char* nome) {
    QFile file(percorso(nome));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
  }
  // The ground that a style sheet gives a selector; invalid where it gives none, or more than one.
  static QColor fondo(const QString& stile, const QString& selettore) {
    static const QRegularExpression regola(QStringLiteral("([^{}/]+)\\{([^{}]*)\\}"));
    static const QRegularExpression tinta(QStringLiteral("background: (#[0-9a-f]{6})"));
    QColor trovata;
    for (auto regole = regola.globalMatch(stile); regole.hasNext();) {
      const auto una = regole.next();
      const auto sua = tinta.match(una.captured(2));
      for (const QString& quale : una.captured(1).split(u',')) {
        if (quale.trimmed() != selettore || !sua.hasMatch()) continue;
        if (trovata.isValid()) return {};
        trovata = QColor(sua.captured(1));
      }
    }
    return trovata;
  }

  static void famiglie() {
    QTest::addColumn<QString>("famiglia");
    QTest::addColumn<QColor>("tinta");
    const auto riga = [](const char* nome, Rgb tinta) {
      QTest::newRow(nome) << QString::fromLatin1(nome) << platform::toColor(tinta);
    };
    riga("barre", kTintaBarre);
    riga("tabella", kTintaTabella);
    riga("blocchi", kTintaBlocchi);
    riga("numeri", kTintaNumeri);
    riga("abaco", kTintaAbaco);
  }

 private Q_SLOTS:
  void theManualGivesAFamilyTheTintOfTheMenus_data() { famiglie(); }
  void theManualGivesAFamilyTheTintOfTheMenus() {
    QFETCH(QString, famiglia);
    QFETCH(QColor, tinta);
    const QString stile = letto("manuale/stile.css");
    for (const char* dove : {"h1.%1", "table.famiglie tr.%1 td", ".disegni .%1"}) {
      QCOMPARE(fondo(stile, QString::fromLatin1(dove).arg(famiglia)), tinta);
    }
    QVERIFY(letto("manuale/libro.html.in")
                .contains(QStringLiteral("<img class=\"%1\" src=\"menu_%1.svg\"").arg(famiglia)));
  }

  void theStripOfReadmeGivesAFamilyTheTintOfTheMenus_data() { famiglie(); }
  void theStripOfReadmeGivesAFamilyTheTintOfTheMenus() {
    QFETCH(QString, famiglia);
    QFETCH(QColor, tinta);
    QCOMPARE(fondo(letto("tools/manuale/striscia.html"), u'.' + famiglia), tinta);
  }

  // A picture that was not made anew after a change shows it.
  void thePictureOfTheStripShowsEveryTint_data() { famiglie(); }
  void thePictureOfTheStripShowsEveryTint() {
    QFETCH(QColor, tinta);
    const QImage striscia(percorso("docs/immagini/famiglie.png"));
    QVERIFY(!striscia.isNull());
    int quanti = 0;
    for (int y = 0; y < striscia.height(); ++y) {
      for (int x = 0; x < striscia.width(); ++x) {
        quanti += int(striscia.pixelColor(x, y) == tinta);
      }
    }
    // The ground of a family's picture, without the picture.
    QVERIFY2(quanti * 100 > striscia.width() * striscia.height(),
             qPrintable(QString::number(quanti)));
  }
};

const prova::Iscrizione<TinteTest, QCoreApplication> kIscritta;

}  // namespace tinte_test

#include "tinte_test.moc"
