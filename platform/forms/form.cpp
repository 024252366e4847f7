#include "platform/forms/form.h"

#include <QApplication>
#include <algorithm>

#include "platform/base/services.h"
#include "platform/base/time_source.h"
#include "platform/forms/accessible_labels.h"
#include "platform/forms/controls/button.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/menu_bar.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

QString toText(std::string_view text) {
  return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

// The rows of all tables, a later one with the same name and index in the place of the earlier.
std::vector<Row> mergedRows(const FormDesign& design) {
  std::vector<Row> rows;
  for (const std::span<const Row> table : design.tables) {
    for (const Row& row : table) {
      const auto same = std::find_if(rows.begin(), rows.end(), [&row](const Row& other) {
        return other.name == row.name && other.index == row.index;
      });
      if (same == rows.end()) {
        rows.push_back(row);
      } else {
        *same = row;
      }
    }
  }
  return rows;
}

// The mouse gives the focus to a widget that has gone, when it is pressed while another of its
// buttons has been held there since. The focus stays where it was: what had it until now can have
// it. Whichever form the widget is on, the one in front takes what nothing had. now: has the focus;
// before: had it, may be null.
void keepFromHidden(Canvas& canvas, QWidget* before, QWidget& now) {
  if (now.isVisible()) return;
  if (before != nullptr) {
    before->setFocus(Qt::OtherFocusReason);
  } else if (!canvas.passFocus(nullptr, true)) {
    now.clearFocus();
  }
}

}  // namespace

Form::Form(Ground& ground, const FormDesign& design)
    : ground_(ground),
      design_(design),
      tallest_(design.height),
      name_(toText(design.name)),
      caption_(toText(design.caption)) {}

Form::~Form() {
  delete page_.data();
}

void Form::build(QWidget* parent) {
  page_ = new Page(*this, parent);
  page_->setObjectName(name_);
  page_->hide();
  buildRows();
  bindLabels();
  setTabOrder();
  QObject::connect(qApp, &QApplication::focusChanged, page_, [this](QWidget* before, QWidget* now) {
    if (now == nullptr) return;
    keepFromHidden(*page_->canvas(), before, *now);
    focusMoved(*now);
  });
  built_ = true;
}

void Form::buildRows() {
  const std::vector<Row> rows = mergedRows(design_);
  controls_.reserve(rows.size());
  for (const Row& row : rows) {
    Control& control = row.control(*this, row.index);
    control.build(parentFor(row), toText(row.name), row.index, row.place, row.look);
    controls_.push_back(&control);
  }
  // What has a window of its own lies over what is painted, whatever the order of the rows.
  for (const int layer : {1, 2}) {
    for (Control* control : controls_) {
      if (control->layer() == layer) control->bringToFront();
    }
  }
}

QWidget* Form::parentFor(const Row& row) const {
  if (row.look.in.empty()) return page_->canvas();
  const QString container = toText(row.look.in);
  for (const Control* control : controls_) {
    if (control->name() == container) return control->container();
  }
  return page_->canvas();
}

void Form::bindLabels() {
  for (const Control* control : controls_) {
    if (control->look().label.empty()) continue;
    const QString name = toText(control->look().label);
    for (const Control* label : controls_) {
      if (label->name() != name && !label->name().startsWith(name + u'(')) continue;
      for (QWidget* box : control->tabStops()) bindLabel(*label->widget(), *box);
    }
  }
}

void Form::setTabOrder() {
  QWidget* before = nullptr;
  for (const Control* control : controls_) {
    for (QWidget* widget : control->tabStops()) {
      if (before != nullptr) QWidget::setTabOrder(before, widget);
      before = widget;
    }
  }
}

void Form::adopt(Control& control) {
  controls_.push_back(&control);
  control.applyScale();
  QWidget* widget = control.widget();
  if (widget == nullptr) return;
  // Under the lowest of what belongs above it; children are listed from the lowest to the highest.
  for (QObject* sibling : widget->parentWidget()->children()) {
    const auto other = std::find_if(controls_.begin(), controls_.end(), [sibling](Control* known) {
      return known->widget() == sibling;
    });
    if (other == controls_.end() || *other == &control) continue;
    if ((*other)->layer() > control.layer() || *other == cover_) {
      widget->stackUnder((*other)->widget());
      return;
    }
  }
}

void Form::release(const Control& control) {
  std::erase(controls_, &control);
  std::erase(declared_, &control);
}

std::vector<const Control*> Form::withoutRow() const {
  std::vector<const Control*> result;
  std::copy_if(declared_.begin(), declared_.end(), std::back_inserter(result),
               [](const Control* control) { return !control->isBuilt(); });
  return result;
}

void Form::setCaption(const QString& caption) {
  caption_ = caption;
  ground_.formChanged(*this);
}

void Form::setDesignHeight(double twips) {
  design_.height = twips;
  tallest_ = std::max(tallest_, twips);
  laidOut_ = false;
  ground_.formChanged(*this);
}

void Form::onClose() {
  unload();
}

void Form::setIcon(const QIcon& icon) {
  icon_ = icon;
  ground_.formChanged(*this);
}

void Form::paintGradient() {
  page_->canvas()->keepGradient();
}

void Form::takeSize() {
  if (!isLoaded() || page_ == nullptr) return;
  run([this] { onResize(); }, Gate::Cases::DoNotMatter);
}

void Form::layOut() {
  const Scale scale = scaleFor(page_->canvas()->size(), {design_.width, design_.height});
  if (laidOut_ && scale == scale_) return;
  scale_ = scale;
  laidOut_ = true;
  for (Control* control : controls_) control->applyScale();
}

void Form::letEventsRun() {
  ground_.gate().wait([this] { ground_.time().letEventsRun(); });
}

bool Form::run(const std::function<void()>& handler, Gate::Cases cases) {
  return ground_.gate().run(shared_from_this(), handler, cases);
}

void Form::dispose() {
  unloaded_ = true;
  for (Control* control : controls_) control->formGone();
  if (page_) page_->hide();
}

void Form::cover(Control& panel) {
  if (cover_ != &panel) focusBelow_ = page_->canvas()->focusWidget();
  cover_ = &panel;
  panel.setPlace(0, 0, width(), height());
  panel.bringToFront();
  panel.setVisible(true);
  page_->update();
  focusCover();
}

void Form::focusCover() {
  for (Control* control : controls_) {
    QWidget* widget = control->widget();
    if (widget == nullptr || !cover_->container()->isAncestorOf(widget)) continue;
    if (dynamic_cast<Button*>(control) != nullptr && control->isEnabled()) {
      widget->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

// Assistive technology gives the focus to a widget without asking its form.
void Form::focusMoved(QWidget& now) {
  if (cover_ == nullptr || !page_->canvas()->isAncestorOf(&now)) return;
  if (cover_->container()->isAncestorOf(&now)) return;
  focusBelow_ = &now;
  focusCover();
}

void Form::uncover(Control& panel) {
  if (cover_ != &panel) return;
  cover_ = nullptr;
  page_->update();
  if (focusBelow_ && focusBelow_->isVisible() && focusBelow_->isEnabled()) {
    focusBelow_->setFocus(Qt::OtherFocusReason);
    return;
  }
  page_->canvas()->passFocus(focusBelow_, true);
}

void Form::dropHiddenFocus() {
  if (page_ == nullptr || !page_->isVisible()) return;
  QWidget* left = page_->canvas()->focusWidget();
  if (left != nullptr && !left->isVisible()) left->clearFocus();
}

const QWidget* Form::focusRoom() const {
  return cover_ == nullptr ? nullptr : cover_->container();
}

std::optional<QColor> Form::coverColor() const {
  return cover_ == nullptr ? std::nullopt : std::optional(toColor(cover_->backColor()));
}

bool Form::isCovered(const Control& control) const {
  if (cover_ == nullptr || control.widget() == nullptr) return false;
  return !cover_->container()->isAncestorOf(control.widget());
}

bool Form::accessKey(QChar key) {
  for (Control* control : controls_) {
    if (control->accessKey() != key || !control->isEnabled() || isCovered(*control)) continue;
    if (control->widget() == nullptr || !control->widget()->isVisible()) continue;
    control->access();
    return true;
  }
  if (!page_->hasMenuBar()) return false;
  return page_->menuBar()->accessKey(key);
}

bool Form::shortcut(const QKeySequence& keys) {
  for (Control* control : controls_) {
    auto* item = dynamic_cast<MenuItem*>(control);
    if (item == nullptr || item->shortcut() != keys || !item->isEnabled()) continue;
    item->click();
    return true;
  }
  return false;
}

void Form::keysLetGo() {
  for (Control* control : controls_) control->keysLetGo();
}

void Form::announce(const QString& sentence) {
  ground_.announcer().announce(sentence);
}

}  // namespace platform::inline forms
