#include "trial_form.h"

#include "platform/forms/runtime.h"

namespace trial {

using namespace platform;

namespace {

constexpr Rgb kCyan{0, 255, 255};

constexpr Row number(int index) {
  return row<&TrialForm::Number>(index, {600.0 + 1200 * index, 4200, 900, 900},
                                 {.caption = "0", .back = kCyan});
}

// The buttons come first on purpose: what is painted lies below them whatever the order.
constexpr auto kControls = std::to_array<Row>({
    row<&TrialForm::First>({600, 3000, 2400, 900}, {.caption = "&First"}),
    row<&TrialForm::Second>({3300, 3000, 2400, 900}, {.caption = "&Second"}),
    row<&TrialForm::Third>({6000, 3000, 2400, 900}, {.caption = "&Third"}),
    number(0),
    number(1),
    number(2),
    row<&TrialForm::Stripe>({600, 1800, 2400, 30}, {}),
    row<&TrialForm::Words>({600, 300, 4800, 600},
                           {.caption = "Words", .font = {Face::Tahoma, 14.25}}),
    row<&TrialForm::Square>(0, {600, 1200, 705, 705},
                            {.caption = " ", .back = kCyan, .border = true}),
    row<&TrialForm::Square>(1, {1305, 1200, 705, 705}, {.back = kCyan, .border = true}),
    row<&TrialForm::Sign>({9000, 300, 900, 900}, {.toolTip = "Right", .picture = "si"}),
    row<&TrialForm::Panel>({0, 0, 12000, 9000}, {.toolTip = "The record", .hidden = true}),
    row<&TrialForm::PanelText>({300, 300, 6000, 6000},
                               {.toolTip = "The lines", .in = nameOf<&TrialForm::Panel>}),
    row<&TrialForm::PanelFirst>(
        {7000, 4000, 2400, 900},
        {.caption = "&Print", .disabled = true, .in = nameOf<&TrialForm::Panel>}),
    row<&TrialForm::PanelSecond>({7000, 6000, 2400, 900},
                                 {.caption = "&Close", .in = nameOf<&TrialForm::Panel>}),
    item<&TrialForm::Clock>({.disabled = true}),
    item<&TrialForm::MenuAct>({.caption = "&Act"}),
    item<&TrialForm::MenuMore>({.caption = "&More"}),
    item<&TrialForm::MenuPlain>({.caption = "Plain", .in = nameOf<&TrialForm::MenuMore>}),
    item<&TrialForm::MenuKeyed>({.caption = "Keyed",
                                 .checked = true,
                                 .in = nameOf<&TrialForm::MenuMore>,
                                 .shortcut = "Ctrl+S"}),
});

constexpr std::array<std::span<const Row>, 1> kTables{kControls};

constexpr FormDesign designOf(std::string_view name, std::string_view caption) {
  return {.name = name,
          .caption = caption,
          .width = 12000,
          .height = 9000,
          .back = {255, 255, 192},
          .tables = kTables};
}

}  // namespace

constinit const FormDesign kOne = designOf("One", "The first form");
constinit const FormDesign kTwo = designOf("Two", "The second form");
constinit const FormDesign kThree = designOf("Three", "The third form");

TrialForm::TrialForm(Ground& ground, const FormDesign& design, QStringList& log)
    : Form(ground, design), log_(log) {}

void TrialForm::happened(const char* event, const std::function<void()>& then) {
  log_.append(QStringLiteral("%1.%2").arg(name(), QLatin1String(event)));
  if (then) then();
}

void TrialForm::onLoad() {
  layout.start();
  happened("Load", loading);
}

void TrialForm::onResize() {
  layout.resize();
  happened("Resize", resizing);
}

void TrialForm::onActivate() {
  happened("Activate", activating);
}

void TrialForm::onUnload() {
  happened("Unload", unloading);
}

void TrialForm::wait(double seconds) {
  TimeSource& time = ground().time();
  const double end = time.secondsSinceMidnight() + seconds;
  while (time.secondsSinceMidnight() < end) {
    ground().gate().wait([&] { time.sleepUntilEvent(end - time.secondsSinceMidnight()); });
  }
}

}  // namespace trial
