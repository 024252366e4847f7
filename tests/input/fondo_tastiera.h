#pragma once

#include "input/tastiera_numerica_scansione.h"
#include "platform/forms/controls/text_box.h"
#include "platform/forms/proportional_layout.h"
#include "support/fondo_di_prova.h"

// A form with a scanning keyboard and a box beside it, and the keys that work the keyboard.
namespace prova {

inline constexpr platform::Rgb kSpento{224, 224, 224};
inline constexpr platform::Rgb kAcceso{255, 0, 0};

// The form's design: one for each kind of keyboard.
template <class T>
const platform::FormDesign& disegnoTastiera();

template <class T>
class OspiteTastiera : public platform::Form {
 public:
  explicit OspiteTastiera(platform::Runtime& runtime) : Form(runtime, disegnoTastiera<T>()) {
    Tastiera1.onComunicaPulsante([this](qint16 pulsante) {
      scelti.push_back(pulsante);
      if (allaScelta) allaScelta(pulsante);
    });
  }

  T Tastiera1{*this};
  platform::TextBox Casella{*this};

  std::vector<int> scelti;
  std::function<void(qint16)> allaScelta;

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }

 private:
  platform::ProportionalLayout layout_{*this};
};

template <class T>
const platform::FormDesign& disegnoTastiera() {
  using Ospite = OspiteTastiera<T>;
  static constexpr auto kRighe = std::to_array<platform::Row>({
      platform::row<&Ospite::Tastiera1>({300, 6000, 14000, 900}, {.toolTip = "Tasti"}),
      platform::row<&Ospite::Casella>({300, 300, 3000, 900}, {.toolTip = "Casella"}),
  });
  static constexpr std::array<std::span<const platform::Row>, 1> kTavole{kRighe};
  static constexpr platform::FormDesign kDisegno{
      .name = "Prova", .caption = "Prova", .width = 15000, .height = 10500, .tables = kTavole};
  return kDisegno;
}

// At this size one twip of the design is one of the page.
template <class T>
class FondoTastiera : public FondoDiProva<OspiteTastiera<T>> {
 public:
  FondoTastiera() : FondoDiProva<OspiteTastiera<T>>(), tastiera(this->forma().Tastiera1) {}

  void premi(int tasto) {
    QTest::keyPress(this->finestra(), Qt::Key(tasto));
    QCoreApplication::processEvents();
  }
  void lascia(int tasto) {
    QTest::keyRelease(this->finestra(), Qt::Key(tasto));
    QCoreApplication::processEvents();
  }
  // A repeat of a key that is held, as the desktop flags it.
  void ripeti(int tasto) {
    qt_handleKeyEvent(this->finestra(), QEvent::KeyPress, tasto, {}, QString(), true);
    QCoreApplication::processEvents();
  }
  void spazio(int volte = 1) {
    for (int i = 0; i < volte; ++i) this->batti(Qt::Key_Space);
  }
  void invio() { this->batti(Qt::Key_Return); }
  void passa(double secondi) {
    this->tempo.advance(secondi);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] const std::vector<int>& scelti() { return this->forma().scelti; }

  T& tastiera;
};

// The buttons that are painted in the colour of the light.
template <class T>
std::vector<int> accesi(T& tastiera) {
  std::vector<int> quali;
  const auto guarda = [&quali](platform::Button& pulsante) {
    if (pulsante.backColor() == kAcceso) quali.push_back(pulsante.index());
  };
  if constexpr (requires { tastiera.PulsanteNumero; }) {
    tastiera.PulsanteNumero.forEach(guarda);
  } else {
    tastiera.Pulsante.forEach(guarda);
  }
  return quali;
}

// Exactly this button is lit: in colour, and by the ring.
template <class T>
bool acceso(T& tastiera, int quale) {
  return accesi(tastiera) == std::vector<int>{quale} && tastiera.pulsanteAcceso() == quale;
}

// The names of the properties in the order of the store.
inline QString nomiDelleProprieta(platform::UserControl& tastiera) {
  QStringList nomi;
  for (const platform::PropertyBase* proprieta : tastiera.properties()) {
    nomi.append(proprieta->name());
  }
  return nomi.join(u' ');
}

// Whether each property has this value, and has it by default.
inline bool alPredefinito(platform::UserControl& tastiera,
                          const std::vector<platform::PropertyValue>& attesi) {
  const auto& proprieta = tastiera.properties();
  return std::equal(proprieta.begin(), proprieta.end(), attesi.begin(), attesi.end(),
                    [](const platform::PropertyBase* una, const platform::PropertyValue& atteso) {
                      return una->value() == atteso && una->fallback() == atteso;
                    });
}

// The keyboard of digits ready for a case, as a form makes it.
inline void prepara(somme::TastieraNumericaScansione& tastiera, bool automatica) {
  tastiera.Attiva();
  tastiera.ScansioneAutomatica.set(automatica);
  tastiera.DisattivaAvanti();
}

// Another window of the desktop that takes the keyboard while it lives.
class AltraFinestra {
 public:
  AltraFinestra() {
    finestra_.show();
    finestra_.activateWindow();
    QCoreApplication::processEvents();
  }
  void torna(platform::Window& nostra) {
    finestra_.hide();
    nostra.activateWindow();
    QCoreApplication::processEvents();
  }

 private:
  QWidget finestra_;
};

}  // namespace prova
