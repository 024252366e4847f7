// The program filmato, run as a process on movies made by hand.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "platform/flash/hand_made.h"
#include "support/iscrizione.h"

namespace filmato_test {

using namespace hand_made;

class FilmatoTest : public QObject {
  Q_OBJECT

 private:
  struct Esito {
    int stato = -1;
    QList<QJsonObject> righe;

    [[nodiscard]] QList<QJsonObject> di(const char* evento) const {
      QList<QJsonObject> trovate;
      for (const QJsonObject& riga : righe) {
        if (riga[QStringLiteral("ev")].toString() == QLatin1StringView(evento)) {
          trovate << riga;
        }
      }
      return trovate;
    }
  };

  QString scrivi(const char* nome, const QByteArray& byte) {
    QString percorso = cartella_.filePath(QString::fromLatin1(nome));
    QFile uscita(percorso);
    if (!uscita.open(QIODevice::WriteOnly) || uscita.write(byte) != byte.size()) {
      qFatal("cannot write a file");
    }
    return percorso;
  }

  static Esito lancia(const QStringList& argomenti) {
    QProcess processo;
    QProcessEnvironment nudo;  // no display, no platform chosen
    processo.setProcessEnvironment(nudo);
    processo.start(QStringLiteral(FILMATO), argomenti);
    Esito esito;
    if (!processo.waitForFinished(60'000) || processo.exitStatus() != QProcess::NormalExit) {
      return esito;
    }
    esito.stato = processo.exitCode();
    for (const QByteArray& linea : processo.readAllStandardOutput().split('\n')) {
      if (!linea.isEmpty()) {
        esito.righe << QJsonDocument::fromJson(linea).object();
      }
    }
    return esito;
  }

  Esito recita(const QByteArray& filmato, const QByteArray& passi) {
    return lancia({scrivi("m.swf", filmato), scrivi("s.json", passi),
                   cartella_.filePath(QStringLiteral("out")), QStringLiteral("test")});
  }

  QTemporaryDir cartella_;

 private Q_SLOTS:
  void itTellsWhatTheMovieIsFirstAndThatItIsDoneLast() {
    const QByteArray filmato =
        file(tag(9, u8(0xFF) + u8(0xEE) + u8(0x0A)) + showFrame() + showFrame(), 6, 210, 90, 2);
    const Esito esito = recita(filmato, "[]");
    QCOMPARE(esito.stato, 0);
    QCOMPARE(esito.righe.size(), 2);
    QCOMPARE(esito.righe[0],
             QJsonDocument::fromJson(
                 "{\"ev\":\"meta\",\"version\":6,\"compressed\":false,\"frames\":2,"
                 "\"width\":210,\"height\":90,\"rate\":12,\"background\":\"#FFEE0A\"}")
                 .object());
    QCOMPARE(esito.righe[1], QJsonDocument::fromJson(R"({"ev":"done","ok":true})").object());
  }

  void loadingIsStepMinusOneAndWaitsAreSingleFrames() {
    const QByteArray filmato =
        file(doAction(tell("one", "1")) + showFrame() + doAction(tell("two")) + showFrame() +
                 doAction(tell("three")) + showFrame(),
             6, 10, 10, 3);
    const Esito esito = recita(filmato, R"([{"wait":0,"frame":true},{"wait":2,"frame":true}])");
    const auto comandi = esito.di("fscommand");
    QCOMPARE(comandi.size(), 3);
    QCOMPARE(comandi[0],
             QJsonDocument::fromJson(R"({"ev":"fscommand","command":"one","args":"1","step":-1})")
                 .object());
    QCOMPARE(comandi[1][QStringLiteral("step")].toInt(), 1);
    QCOMPARE(comandi[2][QStringLiteral("command")].toString(), QStringLiteral("three"));
    const auto fotogrammi = esito.di("frame");
    QCOMPARE(fotogrammi[0],
             QJsonDocument::fromJson(R"({"ev":"frame","step":0,"value":1})").object());
    QCOMPARE(fotogrammi[1],
             QJsonDocument::fromJson(R"({"ev":"frame","step":1,"value":3})").object());
  }

  void gotoStopAndPlayDriveTheMainTimeline() {
    const QByteArray filmato =
        file(showFrame() + showFrame() + showFrame() + showFrame(), 6, 10, 10, 4);
    const Esito esito = recita(filmato, R"([{"goto":3,"frame":true},{"wait":1,"frame":true},
        {"play":true},{"wait":1,"frame":true},{"stop":true},{"wait":5,"frame":true}])");
    QList<int> valori;
    for (const QJsonObject& riga : esito.di("frame")) {
      valori << riga[QStringLiteral("value")].toInt();
    }
    QCOMPARE(valori, (QList<int>{3, 3, 4, 4}));
  }

  void propertiesAreSetAndRead() {
    const QByteArray filmato = file(sprite(1, showFrame()) + place(1, 1, 5, 0, "a") + showFrame());
    const Esito esito = recita(filmato, R"([
        {"get":{"target":"a","prop":0}},
        {"set":{"target":"/a","prop":7,"value":"0"}},
        {"get":{"target":"_root.a","prop":7}},
        {"set":{"target":"a","prop":6,"value":"50"}},
        {"get":{"target":"a","prop":6}},
        {"get":{"target":"","prop":5}},
        {"get":{"target":"nobody","prop":5}}])");
    QStringList valori;
    for (const QJsonObject& riga : esito.di("get")) {
      valori << riga[QStringLiteral("value")].toString();
    }
    QCOMPARE(valori, (QStringList{QStringLiteral("5"), QStringLiteral("0"), QStringLiteral("50"),
                                  QStringLiteral("1"), QString()}));
  }

  void theMouseClicksAndTheCursorTells() {
    const QByteArray pulsante =
        tag(7, u16(2) + u8(8) + u16(1) + u16(1) + shift(0, 0) + u8(0) + tell("k1", "hit") + u8(0));
    const QByteArray filmato =
        file(square(1, 10, 0) + pulsante + place(1, 2, 20, 20) + showFrame());
    const Esito esito = recita(filmato, R"([
        {"move":[5,5],"cursor":true},{"move":[25,25],"cursor":true},
        {"click":[25.5,25.5]},
        {"down":[25,25]},{"up":[25,25]},
        {"down":[25,25]},{"up":[5,5]}])");
    const auto cursori = esito.di("cursor");
    QCOMPARE(cursori[0],
             QJsonDocument::fromJson(R"({"ev":"cursor","step":0,"value":"arrow"})").object());
    QCOMPARE(cursori[1],
             QJsonDocument::fromJson(R"({"ev":"cursor","step":1,"value":"hand"})").object());
    const auto comandi = esito.di("fscommand");
    QCOMPARE(comandi.size(), 2);
    QCOMPARE(comandi[0][QStringLiteral("step")].toInt(), 2);
    QCOMPARE(comandi[1][QStringLiteral("step")].toInt(), 4);
  }

  void aShotIsThePictureOfTheStage() {
    const QByteArray filmato = file(
        tag(9, u8(1) + u8(2) + u8(3)) + square(1, 10, 0xFF0000) + place(1, 1, 5, 5) + showFrame(),
        6, 40, 30);
    const Esito esito = recita(filmato, R"([{"shot":"first"}])");
    const auto scatti = esito.di("shot");
    QCOMPARE(scatti.size(), 1);
    QCOMPARE(scatti[0][QStringLiteral("shot")].toString(), QStringLiteral("first"));
    QCOMPARE(scatti[0][QStringLiteral("size")].toArray(), (QJsonArray{40, 30}));
    const QImage immagine(scatti[0][QStringLiteral("file")].toString());
    QCOMPARE(immagine.size(), QSize(40, 30));
    QCOMPARE(immagine.pixel(0, 0), qRgb(1, 2, 3));
    QCOMPARE(immagine.pixel(5, 5), 0xFFFF0000);
    QCOMPARE(immagine.pixel(15, 5), qRgb(1, 2, 3));
  }

  void aFileThatIsNoMovieIsRejectedWithStatusOne() {
    const Esito esito = recita("not a movie at all", "[]");
    QCOMPARE(esito.stato, 1);
    QCOMPARE(esito.righe.size(), 1);
    QCOMPARE(esito.righe[0][QStringLiteral("ev")].toString(), QStringLiteral("rejected"));
    QVERIFY(!esito.righe[0][QStringLiteral("why")].toString().isEmpty());
    QCOMPARE(lancia({cartella_.filePath(QStringLiteral("none.swf")), scrivi("s.json", "[]"),
                     cartella_.path(), QStringLiteral("x")})
                 .stato,
             1);
  }

  void wrongArgumentsGiveStatusTwo() {
    const QString filmato = scrivi("m.swf", file(showFrame()));
    const QString passi = scrivi("s.json", "[]");
    QCOMPARE(lancia({}).stato, 2);
    QCOMPARE(lancia({filmato, passi, cartella_.path()}).stato, 2);
    QCOMPARE(
        lancia({filmato, passi, cartella_.path(), QStringLiteral("a"), QStringLiteral("b")}).stato,
        2);
    QCOMPARE(lancia({filmato, cartella_.filePath(QStringLiteral("none.json")), cartella_.path(),
                     QStringLiteral("a")})
                 .stato,
             2);
    for (const char* errato :
         {"", "{}", "[{}]", "[1]", R"([{"jump":1}])", R"([{"wait":"x"}])", R"([{"wait":-1}])",
          R"([{"click":[1]}])", R"([{"wait":1,"goto":1}])", R"([{"set":{"target":"a"}}])"}) {
      QCOMPARE(
          lancia({filmato, scrivi("w.json", errato), cartella_.path(), QStringLiteral("a")}).stato,
          2);
    }
  }
};

const prova::Iscrizione<FilmatoTest, QCoreApplication> kIscritta;

}  // namespace filmato_test

#include "filmato_test.moc"
