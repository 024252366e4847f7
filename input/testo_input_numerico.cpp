#include "input/testo_input_numerico.h"

#include <array>
#include <cmath>

#include "app/shared/stringhe_condivise.h"
#include "platform/base/numbers.h"
#include "platform/forms/accessible_events.h"
#include "platform/forms/keys/key_codes.h"
#include "platform/forms/rgb_number.h"

namespace somme::inline ingresso {

using platform::Align;
using platform::inner;
using platform::TextBox;

namespace {

constexpr auto kInterni = std::to_array<platform::InnerRow>({
    inner<&TestoInputNumerico::TestoInput>({.caption = "Text1", .border = true}),
    inner<&TestoInputNumerico::TestoOutput>({.border = true, .hidden = true, .locked = true}),
});

constexpr int kMargine = 10;     // twips, left and above
constexpr int kDueMargini = 30;  // twips, from the size of the whole
constexpr qint16 kDimensioneSenza = 12;

Align AllineamentoDi(qint16 numero) {
  switch (numero) {
    case 1:
      return Align::Right;
    case 2:
      return Align::Centre;
    default:
      return Align::Left;
  }
}

QString Figura(TestoInputNumerico::Riapre modo) {
  switch (modo) {
    case TestoInputNumerico::Riapre::Clic:
      return QStringLiteral("matita");
    case TestoInputNumerico::Riapre::Cestino:
      return QStringLiteral("cestino");
    default:
      return {};
  }
}

bool EUnSeparatore(QChar carattere) {
  return carattere == kSpazio || carattere == u'.' || carattere == u',';
}

}  // namespace

TestoInputNumerico::TestoInputNumerico(platform::ControlHost& ospite)
    : UserControl(ospite, kInterni) {
  TestoInput.onKeyPress([this](int& tasto) { Filtra(tasto); });
  TestoInput.onKeyUp([this](int tasto) {
    if (tasto == platform::kKeyEnter) TerminaInserimento();
  });
  TestoInput.onChange([this] {
    if (isBuilt() && cambiato_) cambiato_();
  });
  TestoOutput.onClick([this] { TornaAllInserimento(); });
  // The click of those who have no mouse.
  TestoOutput.onKeyUp([this](int tasto) {
    if (tasto == platform::kKeySpace) TornaAllInserimento();
  });
}

void TestoInputNumerico::Filtra(int& tasto) {
  const QChar carattere = QChar(char16_t(tasto));
  const bool tenuto = platform::isNumericCharacter(carattere) || tasto == platform::kKeyBackspace ||
                      (AccettaSeparatori.get() && EUnSeparatore(carattere));
  // What has passed is ASCII; a handler may put any other 16-bit code in its place.
  qint16 codice = tenuto ? qint16(tasto) : qint16(0);
  if (tastoPremuto_) tastoPremuto_(codice);
  tasto = codice;
}

void TestoInputNumerico::TerminaInserimento() {
  const QString testo = TestoInput.text();
  if (platform::trimBlanks(testo).isEmpty()) return;
  ValoreInserito = platform::Currency::fromDouble(platform::leadingNumber(testo));
  const QString& formato =
      ValoreInserito.isWhole() ? FormatoNumericoIntero.get() : FormatoNumericoDecimale.get();
  TestoOutput.setText(
      platform::trimBlanks(platform::formatPicture(ValoreInserito.toDouble(), formato)));
  TestoFormattato = TestoOutput.text();
  // After a wrong answer the box is back when the host returns.
  const platform::ComingsToldTogether insieme;
  Mostra(TestoOutput, TestoInput);
  if (confermato_) confermato_();
}

// One box takes the other's place, and the focus with it, so that it never wanders off over the
// form on the way.
void TestoInputNumerico::Mostra(TextBox& casella, TextBox& invece) {
  casella.setVisible(true);
  if (invece.hasFocus()) casella.setFocus();
  invece.setVisible(false);
}

void TestoInputNumerico::TestoPerInput() {
  TestoInput.setVisible(true);
  TestoInput.setFocus();
  TestoOutput.setVisible(false);
}

void TestoInputNumerico::TestoPerOutput() {
  Mostra(TestoInput, TestoOutput);
}

void TestoInputNumerico::Reimposta() {
  TestoInput.setText({});
  TestoOutput.setText({});
  TestoPerInput();
}

void TestoInputNumerico::RiapreCon(Riapre modo) {
  riapre_ = modo;
  if (isBuilt()) layOut();
}

void TestoInputNumerico::TornaAllInserimento() {
  if (Enabled.get()) TestoPerInput();
}

void TestoInputNumerico::propertySet(const platform::PropertyBase& proprieta) {
  if (&proprieta == &DimensioneTesto) scalaDellaDimensione_ = scale().font();
}

void TestoInputNumerico::layOut() {
  const qint16 punti = DimensioneTesto.get() < 1 ? kDimensioneSenza : DimensioneTesto.get();
  TestoInput.setPlace(kMargine, kMargine, width() - kDueMargini, height() - kDueMargini);
  TestoInput.setMaxLength(MaxLength.get());
  TestoInput.setBackColor(platform::rgbOf(ColoreSfondo.get()));
  TestoInput.setForeColor(platform::rgbOf(ColoreTesto.get()));
  TestoInput.setFontName(NomeFont.get().isEmpty() ? QStringLiteral("Tahoma") : NomeFont.get());
  TestoInput.setFontSize(punti * scale().font() / scalaDellaDimensione_);
  TestoInput.setAlignment(AllineamentoDi(Allineamento.get()));
  TestoInput.setEnabled(Enabled.get());
  TestoOutput.setPlace(TestoInput.left(), TestoInput.top(), TestoInput.width(),
                       TestoInput.height());
  TestoOutput.setBackColor(TestoInput.backColor());
  TestoOutput.setForeColor(TestoInput.foreColor());
  TestoOutput.setFontSize(TestoInput.fontSize());
  TestoOutput.setFontName(TestoInput.fontName());
  TestoOutput.setAlignment(TestoInput.alignment());
  TestoOutput.setOpener(Enabled.get() ? Figura(riapre_) : QString());
  if (disposto_) raiseEvent(disposto_);
}

void TestoInputNumerico::applyLook() {
  TestoInput.askForDigits();
  TestoInput.setToolTip(toolTip());
  TestoOutput.setToolTip(toolTip());
}

}  // namespace somme::inline ingresso
