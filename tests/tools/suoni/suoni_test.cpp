#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <span>
#include <vector>

#include "support/iscrizione.h"

namespace suoni_test {

namespace {

constexpr int kFrequenza = 48000;
constexpr int kIntestazione = 44;

QByteArray Leggi(const QString& percorso) {
  QFile file(percorso);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray LeggiSuono(const QString& nome) {
  return Leggi(QStringLiteral(CARTELLA_SUONI "/%1.wav").arg(nome));
}

template <typename Numero>
Numero Campo(const QByteArray& dati, int posto) {
  return qFromLittleEndian<Numero>(dati.constData() + posto);
}

// The samples of one channel: 0 left, 1 right.
std::vector<double> Canale(const QByteArray& dati, int canale) {
  std::vector<double> campioni;
  for (int posto = kIntestazione + 2 * canale; posto + 1 < dati.size(); posto += 4) {
    campioni.push_back(Campo<std::int16_t>(dati, posto));
  }
  return campioni;
}

double Picco(std::span<const double> campioni) {
  double picco = 0;
  for (const double campione : campioni) picco = std::max(picco, std::abs(campione));
  return picco;
}

// Energy of the samples at one frequency.
double Energia(std::span<const double> campioni, double hertz) {
  const std::complex<double> passo =
      std::polar(1.0, -2.0 * std::numbers::pi * hertz / double(kFrequenza));
  std::complex<double> giro = 1.0;
  std::complex<double> somma = 0.0;
  for (const double campione : campioni) {
    somma += campione * giro;
    giro *= passo;
  }
  return std::norm(somma);
}

struct Spettro {
  double baricentro = 0;  // Hz
  double sopra2k = 0;     // share of the energy above 2 kHz
  double piuForte = 0;    // Hz, of the strongest frequency
};

// passo: Hz between two frequencies that are looked at, from there up to 20 kHz.
Spettro Analizza(std::span<const double> campioni, double passo) {
  Spettro spettro;
  double totale = 0;
  double massimo = 0;
  for (double hertz = passo; hertz <= 20000; hertz += passo) {
    const double energia = Energia(campioni, hertz);
    totale += energia;
    spettro.baricentro += energia * hertz;
    if (hertz > 2000) spettro.sopra2k += energia;
    if (energia > massimo) {
      massimo = energia;
      spettro.piuForte = hertz;
    }
  }
  spettro.baricentro /= totale;
  spettro.sopra2k /= totale;
  return spettro;
}

// The strongest frequency below 1 kHz in a stretch of the sound, in seconds.
double Altezza(std::span<const double> campioni, double inizio, double durata) {
  const auto tratto =
      campioni.subspan(std::size_t(inizio * kFrequenza), std::size_t(durata * kFrequenza));
  double migliore = 0;
  double massimo = 0;
  for (double hertz = 100; hertz <= 1000; hertz += 5) {
    const double energia = Energia(tratto, hertz);
    if (energia > massimo) {
      massimo = energia;
      migliore = hertz;
    }
  }
  return migliore;
}

int Avvia(const QStringList& argomenti) {
  QProcess processo;
  processo.start(QStringLiteral(FABBRICA_SUONI), argomenti);
  return processo.waitForFinished() && processo.exitStatus() == QProcess::NormalExit
             ? processo.exitCode()
             : -1;
}

}  // namespace

class SuoniTest : public QObject {
  Q_OBJECT

 private:
  static void OgniSuono() {
    QTest::addColumn<QString>("nome");
    QTest::newRow("si") << QStringLiteral("si");
    QTest::newRow("no") << QStringLiteral("no");
  }

 private Q_SLOTS:
  void theHeaderTellsSixteenBitStereoAt48Kilohertz_data() { OgniSuono(); }
  void theHeaderTellsSixteenBitStereoAt48Kilohertz() {
    QFETCH(QString, nome);
    const QByteArray dati = LeggiSuono(nome);
    QVERIFY(dati.size() > kIntestazione);
    QCOMPARE(dati.first(4), QByteArray("RIFF"));
    QCOMPARE(Campo<quint32>(dati, 4), quint32(dati.size() - 8));
    QCOMPARE(dati.mid(8, 8), QByteArray("WAVEfmt "));
    QCOMPARE(Campo<quint32>(dati, 16), 16U);
    QCOMPARE(Campo<quint16>(dati, 20), quint16(1));
    QCOMPARE(Campo<quint16>(dati, 22), quint16(2));
    QCOMPARE(Campo<quint32>(dati, 24), quint32(kFrequenza));
    QCOMPARE(Campo<quint32>(dati, 28), quint32(kFrequenza * 4));
    QCOMPARE(Campo<quint16>(dati, 32), quint16(4));
    QCOMPARE(Campo<quint16>(dati, 34), quint16(16));
    QCOMPARE(dati.mid(36, 4), QByteArray("data"));
    QCOMPARE(Campo<quint32>(dati, 40), quint32(dati.size() - kIntestazione));
  }

  void aSoundIsShort_data() {
    QTest::addColumn<QString>("nome");
    QTest::addColumn<double>("minimo");
    QTest::addColumn<double>("massimo");
    QTest::newRow("si") << QStringLiteral("si") << 0.5 << 0.7;
    QTest::newRow("no") << QStringLiteral("no") << 0.4 << 0.6;
  }
  void aSoundIsShort() {
    QFETCH(QString, nome);
    QFETCH(double, minimo);
    QFETCH(double, massimo);
    const double secondi = double(Canale(LeggiSuono(nome), 0).size()) / kFrequenza;
    QVERIFY2(secondi >= minimo && secondi <= massimo, qPrintable(QString::number(secondi)));
  }

  void aSoundIsNotLoud_data() { OgniSuono(); }
  void aSoundIsNotLoud() {
    QFETCH(QString, nome);
    for (const int canale : {0, 1}) {
      const double decibel = 20 * std::log10(Picco(Canale(LeggiSuono(nome), canale)) / 32768);
      QVERIFY2(decibel <= -11.5 && decibel >= -14, qPrintable(QString::number(decibel)));
    }
  }

  void aSoundStartsAndEndsWithoutAClick_data() { OgniSuono(); }
  void aSoundStartsAndEndsWithoutAClick() {
    QFETCH(QString, nome);
    for (const int canale : {0, 1}) {
      const std::vector<double> campioni = Canale(LeggiSuono(nome), canale);
      const std::span tratto(campioni);
      const double picco = Picco(tratto);
      QVERIFY(std::abs(campioni.front()) <= 1);
      QVERIFY(std::abs(campioni.back()) <= 1);
      // The first and the last two milliseconds are hardly there, the fifth still soft.
      QVERIFY(Picco(tratto.first(kFrequenza / 500)) <= picco * 0.05);
      QVERIFY(Picco(tratto.last(kFrequenza / 500)) <= picco * 0.01);
      QVERIFY(Picco(tratto.first(kFrequenza / 200)) <= picco * 0.25);
    }
  }

  // A click inside the sound is a leap from one sample to the next that no tone below 1.5 kHz
  // makes.
  void aSoundHasNoLeapBetweenTwoSamples_data() { OgniSuono(); }
  void aSoundHasNoLeapBetweenTwoSamples() {
    QFETCH(QString, nome);
    for (const int canale : {0, 1}) {
      const std::vector<double> campioni = Canale(LeggiSuono(nome), canale);
      const double limite = Picco(campioni) * 2 * std::numbers::pi * 1500 / kFrequenza;
      for (std::size_t i = 1; i < campioni.size(); ++i) {
        QVERIFY(std::abs(campioni[i] - campioni[i - 1]) <= limite);
      }
    }
  }

  void aSoundIsNotShrill_data() {
    QTest::addColumn<QString>("nome");
    QTest::addColumn<double>("minimo");
    QTest::addColumn<double>("massimo");
    QTest::newRow("si") << QStringLiteral("si") << 450.0 << 900.0;
    QTest::newRow("no") << QStringLiteral("no") << 200.0 << 400.0;
  }
  void aSoundIsNotShrill() {
    QFETCH(QString, nome);
    QFETCH(double, minimo);
    QFETCH(double, massimo);
    const std::vector<double> campioni = Canale(LeggiSuono(nome), 0);
    const Spettro spettro = Analizza(campioni, 20);
    QVERIFY2(spettro.baricentro >= minimo && spettro.baricentro <= massimo,
             qPrintable(QString::number(spettro.baricentro)));
    QVERIFY2(spettro.sopra2k < 0.01, qPrintable(QString::number(spettro.sopra2k)));
    QVERIFY2(spettro.piuForte < 1000, qPrintable(QString::number(spettro.piuForte)));
  }

  void aRightAnswerRisesAndAWrongOneFalls() {
    const std::vector<double> si = Canale(LeggiSuono(QStringLiteral("si")), 0);
    const std::vector<double> no = Canale(LeggiSuono(QStringLiteral("no")), 0);
    const double meta = Altezza(si, 0.1, 0.1);
    QVERIFY(meta > Altezza(si, 0.0, 0.1) * 1.1);
    QVERIFY(Altezza(si, 0.35, 0.1) > meta * 1.1);
    QVERIFY(Altezza(no, 0.32, 0.15) < Altezza(no, 0.0, 0.15) * 0.9);
    // The wrong answer ends well below where the right one begins.
    QVERIFY(Altezza(no, 0.32, 0.15) < Altezza(si, 0.0, 0.1) * 0.7);
  }

  void theSoundsAreTheSameBytesOnEveryMachine_data() {
    QTest::addColumn<QString>("nome");
    QTest::addColumn<QByteArray>("impronta");
    QTest::newRow("si") << QStringLiteral("si")
                        << QByteArray(
                               "2201d1eacbfebc44bf9c642f3c5c68e1dd82eb5ff13d8a12f8750dc062d83c42");
    QTest::newRow("no") << QStringLiteral("no")
                        << QByteArray(
                               "4200296358aa88ae319aeecaeedf98fcdbe4d5dd617a318a460e3b990ac6e0ee");
  }
  void theSoundsAreTheSameBytesOnEveryMachine() {
    QFETCH(QString, nome);
    QFETCH(QByteArray, impronta);
    QCOMPARE(QCryptographicHash::hash(LeggiSuono(nome), QCryptographicHash::Sha256).toHex(),
             impronta);
  }

  void theMakerMakesItsFolderAndBothSounds() {
    const QTemporaryDir temporanea;
    const QString cartella = temporanea.filePath(QStringLiteral("nuova/suoni"));
    QCOMPARE(Avvia({cartella}), 0);
    QCOMPARE(Leggi(cartella + QStringLiteral("/si.wav")), LeggiSuono(QStringLiteral("si")));
    QCOMPARE(Leggi(cartella + QStringLiteral("/no.wav")), LeggiSuono(QStringLiteral("no")));
  }

  void theMakerSaysWhenItCannotWrite() {
    const QTemporaryDir temporanea;
    QFile ostacolo(temporanea.filePath(QStringLiteral("file")));
    QVERIFY(ostacolo.open(QIODevice::WriteOnly));
    QCOMPARE(Avvia({ostacolo.fileName() + QStringLiteral("/suoni")}), 1);
    QCOMPARE(Avvia({}), 2);
  }
};

const prova::Iscrizione<SuoniTest, QCoreApplication> kIscritta;

}  // namespace suoni_test

#include "suoni_test.moc"
