#include <QApplication>
#include <ctime>

#include "app/form_menu.h"
#include "app/shared/nomi_forme.h"
#include "exercises/bars/forma_barre_pulsanti.h"
#include "support/banco.h"
#include "support/iscrizione.h"

namespace scritte_lunghe_test {

using prova::Banco;

// Captions that no language file should have.
class ScritteLungheTest : public QObject {
  Q_OBJECT

  // A language file, large enough that values of any length are read, with one caption.
  static QByteArray lingua(const QByteArray& chiave, const QByteArray& scritta) {
    return QByteArray("; ").append(QByteArray(64000, '-')) + "\n[FormMenu]\n" + chiave + "=\"" +
           scritta + "\"\n";
  }
  // Milliseconds of the processor from the showing of a form to its picture in a language with this
  // one caption: what other programs take of it does not count.
  static qint64 durata(std::string_view forma, const QByteArray& chiave,
                       const QByteArray& scritta) {
    Banco banco;
    banco.metti(QStringLiteral("Lunga.lng"), lingua(chiave, scritta));
    banco.metti(QStringLiteral("LangSetting.ini"), "[Language]\nCurrentLanguage=\"Lunga\"\n");
    banco.ambiente->stato.LinguaCorrente = QStringLiteral("Lunga");
    banco.ambiente->stato.LimiteEsercizio = 10;
    const std::clock_t inizio = std::clock();
    banco.mostra(forma);
    (void)banco.ambiente->fondo.window().grab();
    return qint64(std::clock() - inizio) * 1000 / CLOCKS_PER_SEC;
  }

 private Q_SLOTS:
  void aCaptionOf32000CharactersCostsItsFormAThirdOfASecondAtMost_data() {
    QTest::addColumn<QByteArray>("forma");
    QTest::addColumn<QByteArray>("chiave");
    QTest::addColumn<QByteArray>("parola");
    const QByteArray menu("FormMenu");
    const QByteArray barre("FormBarre10");
    for (const char* parola : {"parola ", "x"}) {
      const auto riga = [&](const QByteArray& forma, const char* chiave) {
        QTest::addRow("%s, %s", chiave, parola)
            << forma << QByteArray(chiave) << QByteArray(parola);
      };
      riga(menu, "FormMenu.Caption");
      riga(menu, "Command2.Caption");
      riga(menu, "Command2.ToolTipText");
      riga(menu, "mnuImpostazioni.Caption");
      riga(menu, "mnuUsaCursoreDiSistema.Caption");
      riga(barre, "PulsanteAvanti.Caption");
      riga(barre, "Label4(1).Caption");
      riga(barre, "mnuStampa.Caption");
    }
  }
  void aCaptionOf32000CharactersCostsItsFormAThirdOfASecondAtMost() {
    QFETCH(QByteArray, forma);
    QFETCH(QByteArray, chiave);
    QFETCH(QByteArray, parola);
    const std::string_view nome(forma.constData(), size_t(forma.size()));
    QByteArray lunga;
    while (lunga.size() < 32000) lunga += parola;
    qint64 breve = durata(nome, chiave, "parola");
    breve = std::max(breve, durata(nome, chiave, "parola"));
    const qint64 meno = durata(nome, chiave, lunga);
    QVERIFY2(meno - breve <= 300, qPrintable(QStringLiteral("%1 ms").arg(meno - breve)));
  }
};

const prova::Iscrizione<ScritteLungheTest, QApplication> kIscritta;

}  // namespace scritte_lunghe_test

#include "scritte_lunghe_test.moc"
