#include "platform/forms/house_style.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "platform/forms/colors.h"
#include "platform/forms/controls/button_face.h"
#include "platform/forms/focus_ring.h"
#include "platform/forms/pictures.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

namespace {

constexpr double kSpentInk = 0.45;  // of what cannot be used

// Between the words of two menus, of the size of their letters; Fusion itself leaves a fixed part
// of it round each.
constexpr double kBetweenMenus = 1.2;
constexpr int kRoundMenu = 12;  // pixels

// The column of the ticks before a menu's words: Fusion keeps this part of the height free for it,
// and reckons with these pixels where it says how wide the menu is.
constexpr double kTickColumn = 0.79;
constexpr int kReckonedColumn = 20;

constexpr double kIconSize = 2.5;  // of a box's drawing, of the size of its letters

constexpr int kPlainMark = 22;     // of an option, in pixels
constexpr int kSmallestMark = 8;   // pixels
constexpr double kMarkEdge = 1.5;  // pixels
constexpr double kDot = 0.26;      // of the side of a mark, from its edge
constexpr double kTick = 0.14;     // of the side of a mark
constexpr double kArrow = 0.2;     // of the height of a list, half as wide as the arrow is
constexpr int kBesideRing = 3;     // pixels

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
  return option.state.testFlag(flag);
}

// Where the mark of an option stands, and from where on its words.
struct ToggleRooms {
  QRect mark;
  QRect words;
};

// The mark is as large as the words beside it.
ToggleRooms roomsOf(const QWidget& toggle) {
  const int ring = int(kFocusRingWidth * markScale(toggle));
  const int largest = std::max(kPlainMark, toggle.fontMetrics().height() * 4 / 5);
  const int side = std::clamp(toggle.height() - 2 * ring - 2, kSmallestMark, largest);
  const int margin = ring + 2;
  return {{margin, (toggle.height() - side) / 2, side, side},
          toggle.rect().adjusted(2 * margin + side, 2, -margin, -2)};
}

void paintTick(QPainter& painter, const QRectF& box) {
  const double half = box.width() / 2;
  painter.setPen(
      QPen(colors::kInk, box.width() * kTick, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  const QPointF middle = box.center();
  const QPointF points[]{middle + QPointF(-0.48, 0.02) * half, middle + QPointF(-0.12, 0.4) * half,
                         middle + QPointF(0.5, -0.36) * half};
  painter.drawPolyline(points, 3);
}

// round: an option of which one holds; else a box with a tick.
void paintMark(QPainter& painter, const QStyleOption& option, const QWidget& widget, bool round) {
  const double edge = markPixels(widget, kMarkEdge);
  const double side = std::min(option.rect.width(), option.rect.height());
  const QRectF box = QRectF(option.rect.x(), option.rect.y(), side, side)
                         .adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (!has(option, QStyle::State_Enabled)) painter.setOpacity(kSpentInk);
  painter.setPen(QPen(colors::kEdge, edge));
  painter.setBrush(has(option, QStyle::State_Sunken) ? colors::kFace.darker(118)
                                                     : QColor(Qt::white));
  const double corner = round ? box.width() / 2 : box.width() / 6;
  painter.drawRoundedRect(box, corner, corner);
  if (has(option, QStyle::State_On) && round) {
    const double dot = side * kDot;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors::kInk);
    painter.drawEllipse(box.adjusted(dot, dot, -dot, -dot));
  } else if (has(option, QStyle::State_On)) {
    paintTick(painter, box);
  }
  painter.restore();
}

// A mark and its words, which take a smaller size or wrap rather than be cut.
void paintToggle(QPainter& painter, const QStyleOptionButton& option, const QWidget& widget,
                 bool round) {
  const ToggleRooms rooms = roomsOf(widget);
  QStyleOption mark = option;
  mark.rect = rooms.mark;
  paintMark(painter, mark, widget, round);
  const bool usable = has(option, QStyle::State_Enabled);
  const auto group = usable ? QPalette::Active : QPalette::Disabled;
  TextBlock words;
  words.set(option.text, widget.font(), rooms.words.size(), Align::Left, true);
  words.paint(painter, rooms.words, option.palette.color(group, QPalette::WindowText),
              option.palette.color(QPalette::Window));
  if (has(option, QStyle::State_HasFocus)) paintFocusRing(painter, widget, 0);
}

void paintPushButton(QPainter& painter, const QStyleOptionButton& option, const QWidget& widget) {
  const bool usable = has(option, QStyle::State_Enabled);
  const ButtonFace face{.color = colors::kFace,
                        .stands = usable,
                        .strong = usable,
                        .pointed = usable && has(option, QStyle::State_MouseOver),
                        .held = has(option, QStyle::State_Sunken)};
  const double edge = buttonEdge(widget);
  const double down = buttonSinking(widget, face.held);
  const QRectF body =
      QRectF(widget.rect()).adjusted(edge / 2, edge / 2 + down, -edge / 2, -edge / 2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  paintButtonFace(painter, widget, face, buttonOutline(widget, body),
                  buttonOutline(widget, body, edge));
  if (has(option, QStyle::State_HasFocus)) paintFocusRing(painter, widget, buttonCorner(widget));
  if (!usable) painter.setOpacity(kSpentInk);
  painter.translate(0, down);
  const int margin = int(kFocusRingWidth * markScale(widget)) + 1;
  const QRect room = widget.rect().adjusted(margin, margin, -margin, -margin);
  TextBlock words;
  words.set(option.text, widget.font(), room.size(), Align::Centre, true);
  words.paint(painter, room, Qt::black, buttonColor(face));
  painter.restore();
}

QRect arrowOf(const QRect& list) {
  return {list.right() + 1 - list.height(), list.top(), list.height(), list.height()};
}

// A list that is closed: the box with an arrow. What is chosen is written on it afterwards.
void paintList(QPainter& painter, const QStyleOptionComboBox& option, const QWidget& widget) {
  const bool usable = has(option, QStyle::State_Enabled);
  painter.fillRect(option.rect, usable ? QColor(Qt::white) : option.palette.window().color());
  paintBorder(painter, option.rect, markPixels(widget, 1), colors::kEdge);
  const QPointF middle = QRectF(arrowOf(option.rect)).center();
  const double half = option.rect.height() * kArrow;
  const QPointF points[]{middle + QPointF(-half, -half * 0.55),
                         middle + QPointF(half, -half * 0.55), middle + QPointF(0, half * 0.75)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (!usable) painter.setOpacity(kSpentInk);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colors::kInk);
  painter.drawPolygon(points, 3);
  painter.restore();
  if (has(option, QStyle::State_HasFocus)) paintFocusRing(painter, widget, 0);
}

}  // namespace

HouseStyle::HouseStyle(BoxDrawings drawings)
    : QProxyStyle(QStringLiteral("Fusion")), drawings_(std::move(drawings)) {
  if (!drawings_.folder.isEmpty()) pictures_ = std::make_unique<Pictures>(drawings_.folder);
}

HouseStyle::~HouseStyle() = default;

// The same on every desktop: some have No on the left of Yes.
int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* answer) const {
  if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                            const QWidget* widget) const {
  const int usual = QProxyStyle::pixelMetric(metric, option, widget);
  if (metric == PM_TextCursorWidth) return 0;
  if (widget == nullptr) return usual;
  const int letters = widget->font().pixelSize();
  switch (metric) {
    case PM_MenuBarItemSpacing:
      return std::max(usual, int(letters * kBetweenMenus) - kRoundMenu);
    case PM_MessageBoxIconSize:
      return int(std::lround(letters * kIconSize));
    case PM_ScrollBarExtent:
      return std::max(usual, markPixels(*widget, usual));
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return std::max(kPlainMark, widget->fontMetrics().height() * 4 / 5);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
      // What is kept free for the ring round mark and words.
      return 4 * (int(kFocusRingWidth * markScale(*widget)) + 2);
    default:
      return usual;
  }
}

// Large words have a wider column before them, which must not shorten them.
QSize HouseStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const {
  QSize whole = QProxyStyle::sizeFromContents(type, option, size, widget);
  if (type == CT_MenuItem) {
    const int column = int(std::ceil(whole.height() * kTickColumn));
    whole.rwidth() += std::max(0, column - kReckonedColumn);
  }
  return whole;
}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const bool round = element == PE_IndicatorRadioButton;
  if (widget != nullptr && (round || element == PE_IndicatorCheckBox)) {
    paintMark(*painter, *option, *widget, round);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  if (button != nullptr && widget != nullptr) {
    if (element == CE_PushButton) return paintPushButton(*painter, *button, *widget);
    if (element == CE_RadioButton) return paintToggle(*painter, *button, *widget, true);
    if (element == CE_CheckBox) return paintToggle(*painter, *button, *widget, false);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
  const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control == CC_ComboBox && list != nullptr && widget != nullptr) {
    paintList(*painter, *list, *widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

QRect HouseStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                 SubControl part, const QWidget* widget) const {
  if (control == CC_ComboBox && widget != nullptr) {
    if (part == SC_ComboBoxArrow) return arrowOf(option->rect);
    if (part == SC_ComboBoxEditField) {
      const int margin = int(kFocusRingWidth * markScale(*widget));
      return option->rect.adjusted(margin + kBesideRing, margin, -option->rect.height(), -margin);
    }
  }
  return QProxyStyle::subControlRect(control, option, part, widget);
}

// A drawing that is missing leaves its place empty.
QIcon HouseStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                               const QWidget* widget) const {
  const QString* name = icon == SP_MessageBoxInformation ? &drawings_.information
                        : icon == SP_MessageBoxCritical  ? &drawings_.critical
                                                         : nullptr;
  if (name == nullptr || !pictures_) return QProxyStyle::standardIcon(icon, option, widget);
  const int side = proxy()->pixelMetric(PM_MessageBoxIconSize, option, widget);
  const qreal ratio = widget == nullptr ? 1 : widget->devicePixelRatioF();
  return {pictures_->pixmap(*name, {side, side}, ratio)};
}

}  // namespace platform::inline forms
