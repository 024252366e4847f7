#include <QApplication>
#include <cstdio>

#include "platform/devices/qt_time_source.h"
#include "platform/devices/system_process_end.h"
#include "platform/forms/appearance.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/form.h"
#include "platform/forms/proportional_layout.h"
#include "platform/forms/qt_announcer.h"
#include "platform/forms/runtime.h"

// A window with one button that writes a line for each click: for whoever holds keys down on a real
// display and counts what comes of it.
namespace {

using platform::Look;
using platform::Row;
using platform::row;

class FormConta final : public platform::Form {
 public:
  explicit FormConta(platform::Runtime& runtime);

  platform::Button Conta{*this};

 protected:
  void onLoad() override { layout_.start(); }
  void onResize() override { layout_.resize(); }
  void onActivate() override {
    Conta.setFocus();
    std::puts("ready");
    std::fflush(stdout);
  }

 private:
  platform::ProportionalLayout layout_{*this};
};

constexpr auto kRows = std::to_array<Row>({
    row<&FormConta::Conta>({500, 500, 3000, 2000}, {.caption = "&conta", .font = {.size = 20}}),
});
constexpr std::array<std::span<const Row>, 1> kTables{kRows};
constexpr platform::FormDesign kDesign{
    .name = "FormConta", .caption = "Conta", .width = 4000, .height = 3000, .tables = kTables};

FormConta::FormConta(platform::Runtime& runtime) : Form(runtime, kDesign) {
  Conta.onClick([] {
    std::puts("click");
    std::fflush(stdout);
  });
}

struct NoBoxes final : platform::MessageBoxes {
  platform::BoxAnswer show(const platform::MessageBox& /*box*/) override {
    return platform::BoxAnswer::Ok;
  }
};

}  // namespace

int main(int argc, char* argv[]) {
  QApplication program(argc, argv);
  platform::applyAppearance();
  platform::QtTimeSource time;
  platform::SystemProcessEnd end;
  platform::QtAnnouncer announcer;
  NoBoxes boxes;
  platform::Pictures none{QString()};
  platform::Runtime* ground = nullptr;
  platform::Runtime runtime(
      {time, boxes, end, announcer, none}, QStringLiteral("Conta"), QString(),
      [&ground](std::string_view) { return std::make_shared<FormConta>(*ground); });
  ground = &runtime;
  runtime.forms().show("FormConta");
  return QApplication::exec();
}
