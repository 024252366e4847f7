#include <QApplication>
#include <QTimer>
#include <cstdio>

#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_process_end.h"
#include "platform/forms/appearance.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"
#include "platform/forms/qt_announcer.h"
#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/runtime.h"

// A window with a menu, a message box and a dialog with a list, each reached by Alt and a letter,
// which writes a line for each that is opened and for what is done there: for whoever sends keys on
// a real display and looks which of them arrive.
namespace {

using platform::item;
using platform::Look;
using platform::nameOf;
using platform::Row;
using platform::row;

void tell(const char* what) {
  std::puts(what);
  std::fflush(stdout);
}

class FormTasti final : public platform::Form {
 public:
  explicit FormTasti(platform::Runtime& runtime);

  platform::Button Riquadro{*this};
  platform::Button Dialogo{*this};
  platform::MenuItem mnuScelte{*this};
  platform::MenuItem mnuPrima{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }
  void onActivate() override { tell("ready"); }

 private:
  platform::ProportionalLayout layout_{*this};
};

class FormLista final : public platform::Form {
 public:
  explicit FormLista(platform::Runtime& runtime);

  platform::ComboBox Lista{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }
  void onActivate() override {
    Lista.setItems({QStringLiteral("uno"), QStringLiteral("due")});
    Lista.setFocus();
    tell("dialog open");
  }
  void onClose() override {
    tell("dialog closed");
    Form::onClose();
  }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<Row>({
    row<&FormTasti::Riquadro>({500, 500, 2000, 900}, {.caption = "&box"}),
    row<&FormTasti::Dialogo>({500, 1600, 2000, 900}, {.caption = "&dialog"}),
    item<&FormTasti::mnuScelte>({.caption = "&menu"}),
    item<&FormTasti::mnuPrima>({.caption = "first", .in = nameOf<&FormTasti::mnuScelte>}),
});
constexpr auto kListRows = std::to_array<Row>({
    row<&FormLista::Lista>({500, 500, 2000, 600}, {.toolTip = "list"}),
});
constexpr std::array<std::span<const Row>, 1> kTables{kRows};
constexpr std::array<std::span<const Row>, 1> kListTables{kListRows};
constexpr platform::FormDesign kDesign{
    .name = "FormTasti", .caption = "Tasti", .width = 4000, .height = 3000, .tables = kTables};
constexpr platform::FormDesign kListDesign{
    .name = "FormLista", .caption = "Lista", .width = 3000, .height = 1600, .tables = kListTables};

FormTasti::FormTasti(platform::Runtime& runtime) : Form(runtime, kDesign) {
  Riquadro.onClick([this] {
    QTimer::singleShot(0, [] { tell("box open"); });
    this->ground().showBox({.text = QStringLiteral("Look")});
    tell("box closed");
  });
  Dialogo.onClick([&forms = runtime.forms()] { forms.showModal(forms.loaded("FormLista")); });
  mnuPrima.onClick([] { tell("item chosen"); });
}

FormLista::FormLista(platform::Runtime& runtime) : Form(runtime, kListDesign) {
  Lista.onClick([] { tell("line chosen"); });
}

std::shared_ptr<platform::Form> make(platform::Runtime& ground, std::string_view name) {
  if (name == "FormTasti") return std::make_shared<FormTasti>(ground);
  return std::make_shared<FormLista>(ground);
}

}  // namespace

int main(int argc, char* argv[]) {
  QApplication program(argc, argv);
  platform::applyAppearance();
  platform::QtTimeSource time;
  platform::SystemProcessEnd end;
  platform::QtAnnouncer announcer;
  platform::Pictures none{QString()};
  platform::Runtime* ground = nullptr;
  platform::QtMessageBoxes boxes(
      [] {
        return platform::ButtonWords{QStringLiteral("OK"), QStringLiteral("Yes"),
                                     QStringLiteral("No")};
      },
      [&ground] { return &ground->window(); });
  platform::Runtime runtime({time, boxes, end, announcer, none}, QStringLiteral("Tasti"), QString(),
                            [&ground](std::string_view name) { return make(*ground, name); });
  ground = &runtime;
  runtime.forms().show("FormTasti");
  return QApplication::exec();
}
