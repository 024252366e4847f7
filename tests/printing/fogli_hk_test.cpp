#include <QApplication>

#include "exercises/bars/forma_barre_hk.h"
#include "exercises/numbers/forma_numeri_hk.h"
#include "fogli_di_prova.h"
#include "platform/forms/controls/menu_item.h"
#include "support/come_dal_menu.h"
#include "support/iscrizione.h"

namespace fogli_hk_test {

using prova::Banco;
using somme::FoglioTasti;
using somme::Tasto;

namespace {

constexpr auto kRichiesta = "02#REQ-TOUCH";

struct Voce {
  std::string_view forma;
  std::string_view voce;  // of the menu
  std::string_view foglio;
  Tasto attivo;  // a key that changes what the form shows
};

constexpr std::array kVoci{
    Voce{somme::forme::kFormBarre10HK, "mnuStamopaHK", somme::forme::kFormStampaFoglioNumeri,
         Tasto::Cifra7},
    Voce{somme::forme::kFormBarre20HK, "mnuStamopaHK", somme::forme::kFormStampaFoglioNumeri,
         Tasto::Cifra7},
    Voce{somme::forme::kFormNumeriAddendoHK, "mnuStampaHK", somme::forme::kFormStampaFoglioNumeri2,
         Tasto::Cifra7},
    Voce{somme::forme::kFormNumeriTotaleHK, "mnuStampaHK", somme::forme::kFormStampaFoglioNumeri2,
         Tasto::Cifra7},
    Voce{somme::forme::kFormLUHK, "mnuStampaHK", somme::forme::kFormStampaLU, Tasto::Unita},
    Voce{somme::forme::kFormHLUHK, "mnuStampaHK", somme::forme::kFormStampaPLU, Tasto::Unita},
    Voce{somme::forme::kFormAbacoHK, "mnuStampaHP", somme::forme::kFormStampaAbaco, Tasto::Unita},
};

QString testo(std::string_view s) {
  return QString::fromUtf8(s.data(), qsizetype(s.size()));
}

// A touch form as a family menu opens it, with HelpiKeys on the other side.
platform::Form& apri(Banco& banco, std::string_view nome) {
  prova::ComeDalMenu(*banco.ambiente, nome);
  banco.mostra(nome);
  return *banco.ambiente->fondo.forms().current();
}

platform::MenuItem* voceDi(const platform::Form& forma, std::string_view nome) {
  for (platform::Control* controllo : forma.controls()) {
    if (controllo->name() == testo(nome)) return dynamic_cast<platform::MenuItem*>(controllo);
  }
  return nullptr;
}

// Touches the middle of the frame of a place, wherever that is drawn.
void toccaCornice(Banco& banco, const FoglioTasti& foglio, int posto) {
  const platform::TwipsRect cornice = somme::PostoDi(foglio.tastiera.CorniceDi(posto), {1, 1});
  const int colonna = int(cornice.left + cornice.width / 2) + 1;
  const int riga = int(cornice.top + cornice.height / 2) + 1;
  banco.rete.manda(QByteArray{}.append(char(64 + colonna)).append(char(64 + riga)).append('1'));
}

}  // namespace

// The keyboard sheets from the forms that are worked by touch.
class FogliHKTest : public QObject {
  Q_OBJECT

  static void voci() {
    QTest::addColumn<int>("quale");
    for (int i = 0; i < int(kVoci.size()); ++i) {
      QTest::newRow(qPrintable(testo(kVoci.at(size_t(i)).forma))) << i;
    }
  }

 private Q_SLOTS:
  void yesShowsTheSheetOfTheFormAndItsEndActivatesTheForm_data() { voci(); }
  void yesShowsTheSheetOfTheFormAndItsEndActivatesTheForm() {
    QFETCH(int, quale);
    const Voce& voce = kVoci.at(size_t(quale));
    Banco banco;
    platform::Form& forma = apri(banco, voce.forma);
    QCOMPARE(banco.rete.ricevuti.count(kRichiesta), 1);
    QString mostrato;
    platform::Forms& forme = banco.ambiente->fondo.forms();
    banco.messaggi.rispondi(platform::BoxAnswer::Yes);
    banco.tempo.after(0.1, [&] {
      mostrato = forme.current()->name();
      static_cast<somme::frmAvviaStampa&>(forme.loaded(somme::forme::kFrmAvviaStampa))
          .cmdChiudi.click();
    });
    platform::MenuItem* domanda = voceDi(forma, voce.voce);
    QVERIFY(domanda != nullptr && domanda->isEnabled());
    domanda->click();
    // The sheet is activated again and goes; then the form is.
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
    QCOMPARE(mostrato, testo(voce.foglio));
    QCOMPARE(banco.nomeForma(), testo(voce.forma));
    QCOMPARE(banco.rete.ricevuti.count(kRichiesta), 2);
    QVERIFY(!banco.fine.stato);
  }

  void noLeavesTheFormAsItIs_data() { voci(); }
  void noLeavesTheFormAsItIs() {
    QFETCH(int, quale);
    const Voce& voce = kVoci.at(size_t(quale));
    Banco banco;
    platform::Form& forma = apri(banco, voce.forma);
    banco.messaggi.rispondi(platform::BoxAnswer::No);
    voceDi(forma, voce.voce)->click();
    QCoreApplication::processEvents();
    QCOMPARE(banco.nomeForma(), testo(voce.forma));
    QCOMPARE(banco.rete.ricevuti.count(kRichiesta), 1);
  }

  void aTouchOnAHiddenFrameDoesNothing_data() { voci(); }
  void aTouchOnAHiddenFrameDoesNothing() {
    QFETCH(int, quale);
    const Voce& voce = kVoci.at(size_t(quale));
    Banco banco;
    platform::Form& forma = apri(banco, voce.forma);
    banco.rete.manda("OK");
    banco.messaggi.mostrati.clear();
    const auto ritratto = [&] {
      QCoreApplication::processEvents();
      return forma.page()->grab().toImage();
    };
    const QImage prima = ritratto();
    const FoglioTasti& foglio = somme::FoglioDi(voce.foglio);
    int vuote = 0;
    for (int posto = 1; posto <= foglio.tastiera.Posti(); ++posto) {
      if (!prova::vuota(foglio, posto - 1)) continue;
      ++vuote;
      toccaCornice(banco, foglio, posto);
      QCOMPARE(ritratto(), prima);
    }
    QVERIFY(vuote > 0);
    QCOMPARE(banco.ambiente->stato.ContaEsatti, qint16(0));
    QCOMPARE(banco.ambiente->stato.ContaErrati, qint16(0));
    QVERIFY(banco.messaggi.mostrati.empty());
    // The keys beside them act.
    toccaCornice(banco, foglio, foglio.PostoDi(voce.attivo));
    QVERIFY(ritratto() != prima);
  }
};

const prova::Iscrizione<FogliHKTest, QApplication> kIscritta;

}  // namespace fogli_hk_test

#include "fogli_hk_test.moc"
