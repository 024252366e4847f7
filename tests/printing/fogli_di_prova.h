#pragma once

#include <QTest>
#include <type_traits>

#include "app/shared/foglio_tasti.h"
#include "dialogo_di_prova.h"
#include "printing/foglio_tastiera.h"

// The keyboard sheets.
namespace prova {

// Those with keys.
inline const std::vector<const somme::FoglioTasti*>& fogli() {
  static const std::vector<const somme::FoglioTasti*> tutti = [] {
    std::vector<const somme::FoglioTasti*> conTasti;
    for (const somme::FoglioTasti& foglio : somme::kFogliTasti) {
      if (!foglio.tastiera.tasti.empty()) conTasti.push_back(&foglio);
    }
    return conTasti;
  }();
  return tutti;
}
// Rows of a test: the number of each of them there, as `quale`.
inline void ogniFoglio() {
  QTest::addColumn<int>("quale");
  for (int i = 0; i < int(fogli().size()); ++i) {
    QTest::newRow(std::string(fogli()[size_t(i)]->nome).c_str()) << i;
  }
}
// Whether no key is at the place of a frame.
inline bool vuota(const somme::FoglioTasti& foglio, int cornice) {
  return foglio.TastoDi(cornice + 1).tasto == somme::Tasto::Nessuno;
}

// Shows a sheet over an exercise; does something while its dialog stands open, and closes that
// where it is still there.
template <class F = somme::FoglioTastiera>
void mostra(
    DialogoDiProva& prova, std::string_view nome,
    const std::type_identity_t<std::function<void(F&, somme::frmAvviaStampa&)>>& mentre = {}) {
  platform::Forms& forme = prova.banco.ambiente->fondo.forms();
  prova.banco.tempo.after(0.1, [&] {
    auto* foglio = dynamic_cast<F*>(forme.current());
    QVERIFY(foglio != nullptr);
    auto& dialogo =
        static_cast<somme::frmAvviaStampa&>(forme.loaded(somme::forme::kFrmAvviaStampa));
    prova.lavora(dialogo, [&](somme::frmAvviaStampa& d) {
      if (mentre) mentre(*foglio, d);
    });
  });
  prova.forma.run([&] { forme.show(nome); });
  QCoreApplication::processEvents();
}

// The cell of the surface under a point of the sheet, given as parts of the sheet's size.
struct Cella {
  int colonna;
  int riga;
};
inline Cella cellaDi(double x, double y) {
  return {int(x * somme::kColonneGriglia) + 1, int(y * somme::kRigheGriglia) + 1};
}

// The middle of a frame, and points inside of its corners by a tenth of a cell: no finger aims
// finer, and the whole numbers of the grid leave up to half of that.
inline std::vector<QPointF> puntiDi(const QRectF& cornice, const QSizeF& cella) {
  const QRectF dentro = cornice.adjusted(cella.width() / 10, cella.height() / 10,
                                         -cella.width() / 10, -cella.height() / 10);
  return {cornice.center(), dentro.topLeft(), dentro.topRight(), dentro.bottomLeft(),
          dentro.bottomRight()};
}

// A control of a form by its name, as language files write it.
inline const platform::Control& controlloDi(const platform::Form& forma, const QString& nome) {
  for (const platform::Control* controllo : forma.controls()) {
    if (controllo->name() == nome) return *controllo;
  }
  throw std::logic_error("no control is called " + nome.toStdString());
}

inline QRectF postoDi(const platform::Control& controllo) {
  return {controllo.left(), controllo.top(), controllo.width(), controllo.height()};
}

}  // namespace prova
