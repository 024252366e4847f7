#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "platform/base/paper_codes.h"
#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_process_end.h"
#include "platform/forms/appearance.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/check_box.h"
#include "platform/forms/controls/combo_box.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"
#include "platform/forms/qt_announcer.h"
#include "platform/forms/qt_message_boxes.h"
#include "platform/forms/qt_page_setup.h"
#include "platform/forms/runtime.h"

// A window with a menu, a message box, a question, a page set-up and a dialog with a list and a
// check box, each reached by Alt and a letter, which writes a line for each that is opened and for
// what is done there: for whoever sends keys on a real display and looks which of them arrive.
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
  platform::Button Domanda{*this};
  platform::Button Pagina{*this};
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
  platform::CheckBox Spunta{*this};

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
    row<&FormTasti::Domanda>({2700, 500, 1000, 900}, {.caption = "&question"}),
    row<&FormTasti::Pagina>({2700, 1600, 1000, 900}, {.caption = "&setup"}),
    item<&FormTasti::mnuScelte>({.caption = "&menu"}),
    item<&FormTasti::mnuPrima>({.caption = "first", .in = nameOf<&FormTasti::mnuScelte>}),
});
constexpr auto kListRows = std::to_array<Row>({
    row<&FormLista::Lista>({500, 500, 2000, 600}, {.toolTip = "list"}),
    row<&FormLista::Spunta>({500, 1200, 2000, 300}, {.caption = "tick"}),
});
constexpr std::array<std::span<const Row>, 1> kTables{kRows};
constexpr std::array<std::span<const Row>, 1> kListTables{kListRows};
constexpr platform::FormDesign kDesign{
    .name = "FormTasti", .caption = "Tasti", .width = 4000, .height = 3000, .tables = kTables};
constexpr platform::FormDesign kListDesign{
    .name = "FormLista", .caption = "Lista", .width = 3000, .height = 1600, .tables = kListTables};

// The words of the buttons in the box that is open, from left to right.
QStringList buttonsFromTheLeft() {
  QList<QPushButton*> buttons = QApplication::activeModalWidget()->findChildren<QPushButton*>();
  std::ranges::sort(buttons, {}, [](const QPushButton* button) { return button->x(); });
  QStringList words;
  for (const QPushButton* button : buttons) words.append(button->text());
  return words;
}

void setUpThePage(QWidget& over) {
  platform::QtPageSetup setup(
      [] {
        return platform::PageSetupWords{.portrait = QStringLiteral("upright"),
                                        .landscape = QStringLiteral("across")};
      },
      [](const platform::Paper& paper) { return paper.media; }, [&over] { return &over; });
  platform::PrinterTraits traits;
  traits.papers = {{platform::kPaperA4, QStringLiteral("A4"), 210, 297, 3, 3}};
  platform::PrinterSettings settings;
  settings.paper = traits.papers.front();
  settings.orientation = platform::Orientation::Portrait;
  QTimer::singleShot(0, [] { tell("setup open"); });
  const bool chosen = setup.choose(QStringLiteral("Printer"), traits, settings);
  const bool across = settings.orientation == platform::Orientation::Landscape;
  tell(!chosen ? "setup given up" : across ? "setup: across" : "setup: upright");
}

FormTasti::FormTasti(platform::Runtime& runtime) : Form(runtime, kDesign) {
  Domanda.onClick([this] {
    QTimer::singleShot(0, [] {
      tell(qPrintable(QStringLiteral("question: ") + buttonsFromTheLeft().join(u' ')));
    });
    this->ground().showBox(
        {.text = QStringLiteral("Really"), .buttons = platform::BoxButtons::YesNo});
  });
  Pagina.onClick([&window = runtime.window()] { setUpThePage(window); });
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
  Spunta.onClick([] { tell("ticked"); });
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
