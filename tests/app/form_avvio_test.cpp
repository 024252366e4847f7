#include "app/form_avvio.h"

#include <QAccessible>
#include <QApplication>

#include "app/shared/nomi_forme.h"
#include "app/tabella_forme.h"
#include "support/banco.h"
#include "support/iscrizione.h"
#include "support/righe_di_parole.h"

namespace form_avvio_test {

using prova::Banco;
using somme::FormAvvio;
using somme::forme::kFormAvvio;
using somme::forme::kFormInfo;
using somme::forme::kFormMenu;

// The splash form.
class FormAvvioTest : public QObject {
  Q_OBJECT

  // The name of the form that the road to the main menu leads to.
  static QString menu(const Banco& banco) {
    return somme::CreaForma(*banco.ambiente, kFormMenu)->name();
  }

 private Q_SLOTS:
  void itShowsTheNameTheDateAndTheWayIn() {
    Banco banco;
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(forma.Label2[0].caption(), QStringLiteral("Somme"));
    QCOMPARE(forma.Label1.caption(), QStringLiteral("13 ottobre 2007"));
    QCOMPARE(forma.BottoneAvvio.caption(), QStringLiteral("Avvio"));
    QVERIFY(forma.Image1.isVisible() && forma.Image2.isVisible());
    QCOMPARE(forma.design().back, (platform::Rgb{255, 255, 0}));
    QCOMPARE(banco.ambiente->fondo.window().windowTitle(),
             QStringLiteral("Esercitazioni sulle somme"));
  }

  // What assistive technology calls them is what they show.
  void thePicturesBearTheNamesOfWhatTheyShow_data() {
    prova::righeDiParole({"lingua", "sinistra", "destra"},
                         {{"Deutsch", "Ein Freund aus Blöcken", "Ein Abakus"},
                          {"English", "A friend made of blocks", "An abacus"},
                          {"Español", "Un amigo hecho de bloques", "Un ábaco"},
                          {"Français", "Un ami fait de blocs", "Un boulier"},
                          {"Italiano", "Un amico fatto di blocchi", "Un abaco"},
                          {"none of these", "Un amico fatto di blocchi", "Un abaco"}});
  }
  void thePicturesBearTheNamesOfWhatTheyShow() {
    QFETCH(QString, lingua);
    QFETCH(QString, sinistra);
    QFETCH(QString, destra);
    Banco banco;
    banco.ambiente->stato.LinguaCorrente = lingua;
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    const auto detto = [](const platform::Image& immagine) {
      return QAccessible::queryAccessibleInterface(immagine.widget())->text(QAccessible::Name);
    };
    QCOMPARE(detto(forma.Image1), sinistra);
    QCOMPARE(detto(forma.Image2), destra);
  }

  void itsGroundGoesFromWhiteToYellow() {
    Banco banco;
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    const QImage image = forma.page()->canvas()->grab().toImage();
    QCOMPARE(image.pixelColor(2, 0), QColor(255, 255, 255));
    QCOMPARE(image.pixelColor(2, image.height() - 1), QColor(255, 255, 0));
  }

  void theGroundIsPaintedAtEachActivationAndNotAtAResize() {
    Banco banco({800, 600});
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    banco.ridimensiona({1000, 900});
    // The right edge, near the top: outside of the first picture, almost white in the second.
    const auto edge = [&forma] {
      const QImage image = forma.page()->canvas()->grab().toImage();
      return image.pixelColor(image.width() - 2, 4);
    };
    QCOMPARE(edge(), QColor(255, 255, 0));
    banco.mostra(kFormAvvio);
    QVERIFY(edge().blue() > 240);
  }

  void theButtonLeadsToTheMenuAndLeavesThisForm_data() {
    QTest::addColumn<int>("way");
    QTest::newRow("mouse") << 0;
    QTest::newRow("Enter") << 1;
    QTest::newRow("Space") << 2;
    QTest::newRow("double click") << 3;
  }
  void theButtonLeadsToTheMenuAndLeavesThisForm() {
    QFETCH(int, way);
    Banco banco;
    FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    const std::weak_ptr<platform::Form> watch = forma.weak_from_this();
    if (way == 0) banco.clicca(forma.BottoneAvvio);
    if (way == 3) banco.doppioClic(forma.BottoneAvvio);
    if (way == 1 || way == 2) {
      forma.BottoneAvvio.setFocus();
      banco.batti(way == 1 ? Qt::Key_Return : Qt::Key_Space);
    }
    QCoreApplication::processEvents();
    QCOMPARE(banco.nomeForma(), menu(banco));
    QVERIFY(watch.expired());
  }

  void theKeyboardAloneFindsTheButton() {
    Banco banco;
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    banco.batti(Qt::Key_Tab);
    QVERIFY(forma.BottoneAvvio.hasFocus());
  }

  void everyOtherFormTakesItsIconFromHereWithoutShowingIt() {
    Banco banco;
    banco.mostra(kFormInfo);
    const platform::Form& info = *banco.ambiente->fondo.forms().current();
    const platform::Form& avvio = banco.ambiente->fondo.forms().loaded(kFormAvvio);
    QVERIFY(!avvio.icon().isNull());
    QCOMPARE(info.icon().cacheKey(), avvio.icon().cacheKey());
    QCOMPARE(banco.ambiente->fondo.window().windowIcon().cacheKey(), avvio.icon().cacheKey());
    QVERIFY(!avvio.page()->isVisible());
    QCOMPARE(banco.ambiente->fondo.forms().all().size(), std::size_t(2));
    QCOMPARE(banco.nomeForma(), QStringLiteral("FormInfo"));
  }

  void theFormThatItGivesWayToTakesTheIconFromItAndLoadsNoOther() {
    Banco banco;
    const FormAvvio& forma = banco.apri<FormAvvio>(kFormAvvio);
    const qint64 icona = forma.icon().cacheKey();
    banco.clicca(forma.BottoneAvvio);
    QCOMPARE(banco.ambiente->fondo.forms().all().size(), std::size_t(1));
    QCOMPARE(banco.ambiente->fondo.window().windowIcon().cacheKey(), icona);
  }

  void aHiddenSplashFormIsShownAgainWithoutAnotherLoad() {
    Banco banco;
    banco.mostra(kFormInfo);
    const platform::Form& hidden = banco.ambiente->fondo.forms().loaded(kFormAvvio);
    const FormAvvio& shown = banco.apri<FormAvvio>(kFormAvvio);
    QCOMPARE(static_cast<const platform::Form*>(&shown), &hidden);
    QVERIFY(shown.page()->isVisible());
  }

  void closingTheWindowHereEndsTheProgram() {
    Banco banco;
    banco.mostra(kFormAvvio);
    banco.ambiente->fondo.window().close();
    QCOMPARE(banco.fine.stato, std::optional(0));
  }

  void noTimerRunsWhileItWaits() {
    Banco banco;
    banco.mostra(kFormAvvio);
    QVERIFY(!banco.tempo.anyTicker());
  }
};

const prova::Iscrizione<FormAvvioTest, QApplication> kIscritta;

}  // namespace form_avvio_test

#include "form_avvio_test.moc"
