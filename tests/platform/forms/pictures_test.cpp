#include "platform/forms/pictures.h"

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "support/iscrizione.h"
#include "tools/immagini/registratore.h"

namespace pictures_test {

using platform::Pictures;

// The program's drawings.
class PicturesTest : public QObject {
  Q_OBJECT

  QTemporaryDir folder_;

  void put(const char* name, const QByteArray& content) const {
    QFile file(folder_.filePath(QLatin1String(name)));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  // Drawn from an SVG file, as the build does it.
  void draw(const char* name, const QByteArray& svg) const {
    const auto drawing = somme::Registra(svg);
    QVERIFY(drawing.has_value());
    put(name, drawing->toBytes());
  }

  static QImage painted(Pictures& pictures, const char* name, QSize paper, const QRectF& area) {
    QImage image(paper, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    pictures.paint(painter, QLatin1String(name), area);
    return image;
  }

  static bool isBlank(const QImage& image) {
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    return image == white;
  }

 private Q_SLOTS:
  void initTestCase() {
    draw("red.drawing",
         "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 10'>"
         "<rect width='20' height='10' fill='#ff0000'/>"
         "<circle id='punta' cx='5' cy='2.5' r='1' fill='#ff0000'/></svg>");
    draw("parts.drawing",
         "<svg xmlns='http://www.w3.org/2000/svg' viewBox='10 0 40 20'>"
         "<g fill='#ff0000'><rect id='parte1' x='12' y='2' width='10' height='16'/></g>"
         "<g fill='#0000ff'><rect id='parte2' x='30' y='4' width='8' height='8'/></g></svg>");
    // Its parts lie on one another; the whole shows the second.
    draw("twins.drawing",
         "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20'>"
         "<rect id='parte1' x='2' y='2' width='10' height='16' fill='#ff0000'/>"
         "<rect id='parte2' x='2' y='2' width='10' height='16' fill='#0000ff'/></svg>");
    draw("glass.drawing",
         "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 20'>"
         "<rect x='2' y='2' width='10' height='16' fill='#ff0000' opacity='0.5'/>"
         "<rect x='20' y='2' width='10' height='16' fill='#0000ff'/></svg>");
    QVERIFY(!somme::Registra("<svg xmlns='http://www.w3.org/2000/svg'><rect"));
    QFile whole(folder_.filePath(QStringLiteral("red.drawing")));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    put("broken.drawing", whole.readAll().chopped(40));
    put("other.drawing", "<svg xmlns='http://www.w3.org/2000/svg'/>");
    put("empty.drawing", "");
    draw("flat.drawing", "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 0 0'/>");
  }

  void aPictureFillsItsAreaInItsOwnProportionsInTheMiddle() {
    Pictures pictures(folder_.path());
    const QImage image = painted(pictures, "red", {100, 100}, QRectF(0, 0, 100, 100));
    QCOMPARE(image.pixelColor(1, 50), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(98, 50), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(50, 27), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(50, 72), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(50, 22), QColor(Qt::white));
    QCOMPARE(image.pixelColor(50, 77), QColor(Qt::white));
  }

  void whatIsMissingOrBrokenDrawsNothing_data() {
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"nowhere", "broken", "other", "empty", "flat", ""}) {
      QTest::newRow(name) << QByteArray(name);
    }
  }
  void whatIsMissingOrBrokenDrawsNothing() {
    QFETCH(QByteArray, name);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral(".*")));
    qWarning("at most some complaint");
    Pictures pictures(folder_.path());
    QVERIFY(isBlank(painted(pictures, name, {40, 40}, QRectF(0, 0, 40, 40))));
    QVERIFY(pictures.pixmap(QLatin1String(name), {32, 32}, 1).size() == QSize(32, 32));
    QCOMPARE(pictures.hotSpot(QLatin1String(name), {32, 32}), QPoint());
  }

  void aDrawingWithGlassInItFadesAsAWhole_data() {
    QTest::addColumn<double>("ratio");
    QTest::newRow("screen") << 1.0;
    QTest::newRow("fine screen") << 2.0;
  }
  void aDrawingWithGlassInItFadesAsAWhole() {
    QFETCH(double, ratio);
    Pictures pictures(folder_.path());
    const auto withOpacity = [&](double opacity) {
      QImage image(QSize(100, 60) * ratio, QImage::Format_RGB32);
      image.setDevicePixelRatio(ratio);
      image.fill(Qt::white);
      QPainter painter(&image);
      painter.translate(10, 5);
      painter.setOpacity(opacity);
      pictures.paint(painter, QStringLiteral("glass"), QRectF(0, 0, 80, 40));
      painter.fillRect(QRectF(0, 45, 80, 5), Qt::black);  // what comes after fades likewise
      return image;
    };
    const QImage solid = withOpacity(1);
    const QImage faded = withOpacity(0.5);
    QVERIFY(solid != faded);
    for (int y = 0; y < solid.height(); ++y) {
      for (int x = 0; x < solid.width(); ++x) {
        const QColor from = solid.pixelColor(x, y);
        const QColor to = faded.pixelColor(x, y);
        QVERIFY(std::abs((255 + from.red()) / 2 - to.red()) <= 2);
        QVERIFY(std::abs((255 + from.green()) / 2 - to.green()) <= 2);
        QVERIFY(std::abs((255 + from.blue()) / 2 - to.blue()) <= 2);
      }
    }
  }

  void partsAreDrawnWhereTheyStandInTheWhole() {
    Pictures pictures(folder_.path());
    const QString name = QStringLiteral("parts");
    const QRectF area(0, 0, 120, 100);
    const std::vector<QString> parts = pictures.parts(name);
    QCOMPARE(parts, (std::vector<QString>{QStringLiteral("parte1"), QStringLiteral("parte2")}));
    QImage image(120, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    for (const QString& part : parts) pictures.paintPart(painter, name, part, area);
    painter.end();
    QCOMPARE(image, painted(pictures, "parts", image.size(), area));
    QCOMPARE(pictures.middleOf(name, parts[1], area), QPointF(72, 44));
    QVERIFY(pictures.parts(QStringLiteral("red")).empty());
    QVERIFY(pictures.parts(QStringLiteral("nowhere")).empty());
    QCOMPARE(pictures.middleOf(name, QStringLiteral("parte3"), area), QPointF());
  }

  // Each of these has pixels of its own, whatever was painted before it.
  void whatIsPaintedAgainLooksAsItDidAndNothingElseLooksLikeIt() {
    Pictures pictures(folder_.path());
    struct Stand {
      const char* name;
      const char* part;
      QRectF area;
      double opacity;
    };
    const Stand stands[]{
        {"parts", "", {10, 10, 60, 30}, 1},       {"glass", "", {10, 10, 60, 30}, 1},
        {"parts", "parte1", {10, 10, 60, 30}, 1}, {"parts", "parte2", {10, 10, 60, 30}, 1},
        {"parts", "", {10.5, 10, 60, 30}, 1},     {"parts", "", {10, 10.5, 60, 30}, 1},
        {"parts", "", {10, 10, 60.5, 30.25}, 1},  {"parts", "", {40, 21, 60, 30}, 1},
        {"glass", "", {10, 10, 60, 30}, 0.5},     {"parts", "", {10, 10, 90, 45}, 1},
        {"twins", "parte1", {10, 10, 40, 20}, 1}, {"twins", "parte2", {10, 10, 40, 20}, 1},
    };
    const auto paintedWith = [](Pictures& by, const Stand& stand) {
      QImage image(120, 80, QImage::Format_RGB32);
      image.fill(Qt::white);
      QPainter painter(&image);
      painter.setOpacity(stand.opacity);
      const QLatin1String name(stand.name);
      const QLatin1String part(stand.part);
      if (part.isEmpty()) {
        by.paint(painter, name, stand.area);
      } else {
        by.paintPart(painter, name, part, stand.area);
      }
      return image;
    };
    std::vector<QImage> first;
    for (const Stand& stand : stands) {
      Pictures fresh(folder_.path());
      first.push_back(paintedWith(fresh, stand));
      QVERIFY(!isBlank(first.back()));
      QCOMPARE(std::ranges::count(first, first.back()), 1);
    }
    // Drawn, drawn and held, and as held.
    for (int turn = 0; turn < 3; ++turn) {
      for (std::size_t i = 0; i < first.size(); ++i) {
        QCOMPARE(paintedWith(pictures, stands[i]), first[i]);
      }
    }
  }

  void onlyWhatIsPaintedAgainTakesRoomAndNeverMoreThanTheMost() {
    Pictures pictures(folder_.path());
    constexpr QSize kSize(600, 400);
    constexpr qsizetype kBytes = qsizetype(4) * 600 * 300;
    const auto paintAt = [&](double left) {
      painted(pictures, "parts", kSize, QRectF(left, 0, 600, 400));
    };
    paintAt(0);
    QVERIFY(pictures.heldBytes() < 1000);
    paintAt(0);
    QVERIFY(pictures.heldBytes() >= kBytes);
    QVERIFY(pictures.heldBytes() < kBytes * 11 / 10);
    paintAt(0);
    QVERIFY(pictures.heldBytes() < kBytes * 11 / 10);
    for (int i = 0; i < 2 * Pictures::kHeldBytes / kBytes; ++i) {
      paintAt(i * 0.01);
      paintAt(i * 0.01);
      QVERIFY(pictures.heldBytes() <= Pictures::kHeldBytes);
    }
    QVERIFY(pictures.heldBytes() > Pictures::kHeldBytes / 2);
  }

  void whatGrowsIsAsSharpAsWhatStands() {
    Pictures pictures(folder_.path());
    QImage grown(120, 80, QImage::Format_RGB32);
    grown.fill(Qt::white);
    QPainter painter(&grown);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(3, 3);
    pictures.paint(painter, QStringLiteral("parts"), QRectF(0, 0, 40, 20));
    painter.end();
    const QImage standing = painted(pictures, "parts", grown.size(), QRectF(0, 0, 120, 60));
    QCOMPARE(grown, standing);
  }

  void aPixmapIsSharpOnADenseScreen() {
    Pictures pictures(folder_.path());
    const QPixmap pixmap = pictures.pixmap(QStringLiteral("red"), {32, 32}, 2);
    QCOMPARE(pixmap.size(), QSize(64, 64));
    QCOMPARE(pixmap.devicePixelRatio(), 2.0);
    const QImage image = pixmap.toImage();
    QCOMPARE(image.pixelColor(32, 32), QColor(255, 0, 0));
    QCOMPARE(image.pixelColor(32, 2).alpha(), 0);
  }

  void theHotSpotLiesWhereTheDrawingSays() {
    Pictures pictures(folder_.path());
    QCOMPARE(pictures.hotSpot(QStringLiteral("red"), {40, 20}), QPoint(10, 5));
  }

  void anIconHasTheSizesThatDesktopsAskFor() {
    Pictures pictures(folder_.path());
    const QIcon icon = pictures.icon(QStringLiteral("red"));
    QVERIFY(icon.availableSizes().contains(QSize(16, 16)));
    QVERIFY(icon.availableSizes().contains(QSize(64, 64)));
    QCOMPARE(pictures.icon(QStringLiteral("red")).cacheKey(), icon.cacheKey());
  }
};

const prova::Iscrizione<PicturesTest, QApplication> kIscritta;

}  // namespace pictures_test

#include "pictures_test.moc"
