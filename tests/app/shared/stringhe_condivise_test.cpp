#include "app/shared/stringhe_condivise.h"

#include <QApplication>

#include "support/banco.h"
#include "support/iscrizione.h"

namespace stringhe_condivise_test {

using prova::Banco;
using somme::StringheCondivise;

namespace {

struct Voce {
  const char* chiave;
  QString StringheCondivise::*stringa;
};

// Which key of the language file each string is.
constexpr Voce kVoci[] = {
    {"0002", &StringheCondivise::TestoErrati},
    {"0003", &StringheCondivise::TestoEsatti},
    {"0004", &StringheCondivise::MessaggioHelpiKeys},
    {"0005", &StringheCondivise::TitoloBarre},
    {"0006", &StringheCondivise::TitoloFinoAl10},
    {"0007", &StringheCondivise::TitoloFinoAl20},
    {"0008", &StringheCondivise::TitoloPLUEntro999},
    {"0009", &StringheCondivise::TipoSenzaCambio},
    {"0010", &StringheCondivise::TipoUnCambio},
    {"0011", &StringheCondivise::TipoDueCambi},
    {"0012", &StringheCondivise::TipoConESenzaCambi},
    {"0013", &StringheCondivise::TitoloPLUEntro99},
    {"0014", &StringheCondivise::TipoSoloUnita},
    {"0015", &StringheCondivise::TipoConCambio},
    {"0016", &StringheCondivise::TipoSoloDecine},
    {"0017", &StringheCondivise::TipoSoloCentinaia},
    {"0018", &StringheCondivise::TipoCambioUnita},
    {"0019", &StringheCondivise::TipoCambioDecine},
    {"0020", &StringheCondivise::DomandaStampaTastiera},
    {"0021", &StringheCondivise::ConsegnaBarre1},
    {"0022", &StringheCondivise::ConsegnaBarre2},
    {"0023", &StringheCondivise::ConsegnaBarre3},
};

// A language whose strings are their keys with a word before them.
QByteArray lingua(const QByteArray& parola) {
  QByteArray testo = "[Strings]\n";
  for (int i = 1; i <= 40; ++i) {
    const QByteArray chiave = QByteArray::number(i).rightJustified(4, '0');
    testo += chiave + "=\"" + parola + ' ' + chiave + "\"\n";
  }
  return testo;
}

}  // namespace

// The strings that are read once.
class StringheCondiviseTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eachStringHasItsKey() {
    Banco banco;
    banco.metti(QStringLiteral("Prova.lng"), lingua("voce"));
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Prova");
    CaricaStringhe(*banco.ambiente);
    for (const Voce& voce : kVoci) {
      QCOMPARE(banco.ambiente->stringhe.*voce.stringa,
               QStringLiteral("voce ") + QLatin1String(voce.chiave));
    }
  }

  void theProgramsOwnStringsAreTheSameInEveryLanguage() {
    Banco banco;
    const StringheCondivise& stringhe = banco.ambiente->stringhe;
    QCOMPARE(stringhe.Spazio, QStringLiteral(" "));
    QCOMPARE(stringhe.Trattino, QStringLiteral(" - "));
    QCOMPARE(stringhe.SegnoPiu, QStringLiteral(" + "));
    QCOMPARE(stringhe.SegnoUguale, QStringLiteral(" = "));
    QCOMPARE(stringhe.FormatoNumeri, QStringLiteral("# ##0"));
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Nessuna");
    CaricaStringhe(*banco.ambiente);
    QCOMPARE(stringhe.FormatoNumeri, QStringLiteral("# ##0"));
    QCOMPARE(stringhe.Trattino, QStringLiteral(" - "));
  }

  void theFirstKeyReadsTheChosenLanguage() {
    Banco banco;
    banco.metti(QStringLiteral("Due parole.lng"), lingua("altra"));
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=Due parole\n");
    banco.ambiente->stato.LinguaCorrente.clear();
    CaricaStringhe(*banco.ambiente);
    QCOMPARE(banco.ambiente->stato.LinguaCorrente, QStringLiteral("Due parole"));
    QCOMPARE(banco.ambiente->stringhe.TestoErrati, QStringLiteral("altra 0002"));
  }

  void theyKeepTheLanguageOfTheStart() {
    Banco banco;
    banco.metti(QStringLiteral("Prova.lng"), lingua("voce"));
    const QString before = banco.ambiente->stringhe.TestoEsatti;
    QCOMPARE(before, QStringLiteral("Esatti"));
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Prova");
    banco.mostra("FormInfo");
    somme::ApplicaLingua(*banco.ambiente, *banco.ambiente->fondo.forms().current());
    QCOMPARE(banco.ambiente->stringhe.TestoEsatti, before);
    // What is read at each use follows.
    QCOMPARE(somme::TestoLingua(*banco.ambiente, "0003"), QStringLiteral("voce 0003"));
  }

  void withoutTheFileTheyAreEmpty() {
    Banco banco;
    QFile::remove(banco.percorso(QStringLiteral("Italiano.lng")));
    CaricaStringhe(*banco.ambiente);
    for (const Voce& voce : kVoci) QVERIFY((banco.ambiente->stringhe.*voce.stringa).isEmpty());
  }
};

const prova::Iscrizione<StringheCondiviseTest, QApplication> kIscritta;

}  // namespace stringhe_condivise_test

#include "stringhe_condivise_test.moc"
