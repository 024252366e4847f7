#include "platform/forms/qt_page_setup.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/forms/controls/toggle_widget.h"
#include "platform/forms/fonts.h"

namespace platform::inline forms {

namespace {

constexpr double kTextPixels = 17;
// Where the writing has that size, in pixels.
constexpr int kRowHeight = 36;
constexpr int kBetweenRows = 12;
constexpr QSize kButtonSize{110, 60};

// What is `pixels` long where the writing has its usual size.
int grown(const QWidget& dialog, int pixels) {
  return int(std::lround(pixels * dialog.font().pixelSize() / kTextPixels));
}

// Two choices of which one holds, in a row of their own.
class Choice {
 public:
  Choice(QFormLayout& form, const QString& label, const std::array<QString, 2>& words, bool second)
      : group_(new QButtonGroup(&form)) {
    auto* row = new QHBoxLayout;
    for (int i = 0; i < 2; ++i) {
      auto* button = new SpaceToggle<QRadioButton>(words.at(size_t(i)));
      button->setMinimumHeight(grown(*form.parentWidget(), kRowHeight));
      button->setAccessibleName(QStringLiteral("%1 %2").arg(label, words.at(size_t(i))));
      group_->addButton(button, i);
      row->addWidget(button);
    }
    group_->button(second ? 1 : 0)->setChecked(true);
    form.addRow(label, row);
  }

  [[nodiscard]] bool isSecond() const { return group_->checkedId() == 1; }
  void disableFirst() { group_->button(0)->setEnabled(false); }

 private:
  QButtonGroup* group_;
};

QComboBox* addPapers(QFormLayout& form, const QString& label, const PrinterTraits& traits,
                     const Paper& chosen, const std::function<QString(const Paper&)>& nameOf) {
  auto* papers = new QComboBox;
  for (const Paper& paper : traits.papers) papers->addItem(nameOf(paper));
  const auto at = std::find(traits.papers.begin(), traits.papers.end(), chosen);
  // A paper that the list does not have stays as long as no other is chosen.
  papers->setCurrentIndex(at == traits.papers.end() ? -1 : int(at - traits.papers.begin()));
  papers->setMinimumHeight(grown(*form.parentWidget(), kRowHeight));
  papers->setAccessibleName(label);
  form.addRow(label, papers);
  return papers;
}

void addButtons(QDialog& dialog, QFormLayout& form, const PageSetupWords& words) {
  auto* row = new QHBoxLayout;
  row->setSpacing(grown(dialog, kBetweenRows));
  auto* ok = new QPushButton(words.ok);
  auto* cancel = new QPushButton(words.cancel);
  for (QPushButton* button : {ok, cancel}) {
    button->setMinimumSize(kButtonSize * (dialog.font().pixelSize() / kTextPixels));
    button->setAutoDefault(true);
    row->addWidget(button);
  }
  ok->setDefault(true);
  QObject::connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  form.addRow(row);
}

}  // namespace

bool QtPageSetup::choose(const QString& printer, const PrinterTraits& traits,
                         PrinterSettings& settings) {
  const PageSetupWords words = words_();
  QWidget* window = parent_();
  QDialog dialog(window);
  dialog.setObjectName(QStringLiteral("PageSetup"));
  dialog.setWindowTitle(QStringLiteral("%1 - %2").arg(words.title, printer));
  dialog.setFont(fontOf({}, pixelsOver(window, kTextPixels)));
  auto* form = new QFormLayout(&dialog);
  form->setVerticalSpacing(grown(dialog, kBetweenRows));
  QComboBox* papers = addPapers(*form, words.paper, traits, settings.paper, paperName_);
  const Choice direction(*form, words.orientation, {words.portrait, words.landscape},
                         settings.orientation == Orientation::Landscape);
  Choice colors(*form, words.color, {words.inColor, words.inGray},
                settings.color == ColorMode::Monochrome);
  if (!traits.printsColor) colors.disableFirst();
  addButtons(dialog, *form, words);
  if (dialog.exec() != QDialog::Accepted) return false;
  const int paper = papers->currentIndex();
  if (paper >= 0) settings.paper = traits.papers.at(size_t(paper));
  settings.orientation = direction.isSecond() ? Orientation::Landscape : Orientation::Portrait;
  settings.color = colors.isSecond() ? ColorMode::Monochrome : ColorMode::Color;
  return true;
}

}  // namespace platform::inline forms
