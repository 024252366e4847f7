#include "platform/flash/properties.h"

#include <array>
#include <cmath>
#include <numbers>

#include "platform/flash/bounds.h"
#include "platform/flash/stage.h"
#include "platform/flash/targets.h"
#include "platform/flash/units.h"

namespace platform::flash {

namespace {

constexpr std::array<QStringView, 19> kNames{
    u"_x",           u"_y",           u"_xscale",       u"_yscale",      u"_currentframe",
    u"_totalframes", u"_alpha",       u"_visible",      u"_width",       u"_height",
    u"_rotation",    u"_target",      u"_framesloaded", u"_name",        u"_droptarget",
    u"_url",         u"_highquality", u"_focusrect",    u"_soundbuftime"};

constexpr double kPercent = 100;
constexpr double kDegree = std::numbers::pi / 180;

// A matrix taken apart: lengths of the two axes and where they point, in radians.
struct Axes {
  double scaleX, scaleY, angleX, angleY;

  explicit Axes(const QTransform& m)
      : scaleX(std::hypot(m.m11(), m.m12())),
        scaleY(std::hypot(m.m21(), m.m22())),
        angleX(std::atan2(m.m12(), m.m11())),
        angleY(std::atan2(-m.m21(), m.m22())) {}

  [[nodiscard]] QTransform at(double x, double y) const {
    return {scaleX * std::cos(angleX),
            scaleX * std::sin(angleX),
            -scaleY * std::sin(angleY),
            scaleY * std::cos(angleY),
            x,
            y};
  }
};

void setAxes(Container& of, Property property, double number) {
  Axes axes(of.matrix);
  if (property == Property::ScaleX) {
    axes.scaleX = number / kPercent;
  } else if (property == Property::ScaleY) {
    axes.scaleY = number / kPercent;
  } else {
    const double turn = number * kDegree - axes.angleX;
    axes.angleX += turn;
    axes.angleY += turn;
  }
  of.matrix = axes.at(of.matrix.dx(), of.matrix.dy());
}

void setSize(Container& of, Property property, double pixels, Budget& budget) {
  const QRectF bounds = boundsInParent(of, budget);
  const bool isWidth = property == Property::Width;
  const double now = isWidth ? bounds.width() : bounds.height();
  if (now > 0 && pixels >= 0) {
    Axes axes(of.matrix);
    (isWidth ? axes.scaleX : axes.scaleY) *= pixels * kPixel.count() / now;
    of.matrix = axes.at(of.matrix.dx(), of.matrix.dy());
  }
}

}  // namespace

std::optional<Property> propertyOfNumber(int number) {
  if (number < 0 || number >= static_cast<int>(kNames.size())) {
    return std::nullopt;
  }
  return Property(number);
}

std::optional<Property> propertyOfName(QStringView name) {
  if (!name.startsWith(u'_')) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < kNames.size(); ++i) {
    if (name.compare(kNames[i], Qt::CaseInsensitive) == 0) {
      return Property(i);
    }
  }
  return std::nullopt;
}

namespace {

// Of the clip's own timeline; nothing for a button.
Value frameProperty(const Clip* clip, Property property) {
  if (clip == nullptr) return {};
  return double(property == Property::CurrentFrame ? clip->frame + 1 : clip->timeline.frameCount());
}

// Where and how it stands in its parent.
Value placeProperty(const Stage& stage, const Container& of, Property property) {
  const Axes axes(of.matrix);
  switch (property) {
    case Property::X:
      return Twips(of.matrix.dx()) / kPixel;
    case Property::Y:
      return Twips(of.matrix.dy()) / kPixel;
    case Property::ScaleX:
      return axes.scaleX * kPercent;
    case Property::ScaleY:
      return axes.scaleY * kPercent;
    case Property::Width:
      return Twips(boundsInParent(of, stage.budget()).width()) / kPixel;
    case Property::Height:
      return Twips(boundsInParent(of, stage.budget()).height()) / kPixel;
    default:
      return axes.angleX / kDegree;
  }
}

}  // namespace

Value propertyOf(const Stage& stage, const Container& of, Property property) {
  switch (property) {
    case Property::X:
    case Property::Y:
    case Property::ScaleX:
    case Property::ScaleY:
    case Property::Width:
    case Property::Height:
    case Property::Rotation:
      return placeProperty(stage, of, property);
    case Property::CurrentFrame:
    case Property::TotalFrames:
    case Property::FramesLoaded:
      return frameProperty(asClip(&of), property);
    case Property::Alpha:
      return of.color.multiply[3] * kPercent;
    case Property::Visible:
      return stage.movie().version >= 5 ? Value(of.visible) : Value(of.visible ? 1.0 : 0.0);
    case Property::Target:
      return slashPath(stage, of);
    case Property::Name:
      return of.name;
    case Property::DropTarget:
    case Property::Url:
      return QString();
    case Property::HighQuality:
    case Property::FocusRect:
    case Property::SoundBufTime:
      break;
  }
  return {};
}

void setPropertyOf(Stage& stage, Container& of, Property property, const Value& value) {
  if (property == Property::Name) {
    stage.rename(of, toText(value, stage.movie().version));
    return;
  }
  const double number = toNumber(value, stage.movie().version);
  if (!std::isfinite(number) || std::abs(number) > double(kFarthestTwip)) {
    return;
  }
  const QTransform& m = of.matrix;
  switch (property) {
    case Property::Visible:
      of.visible = number != 0;
      return;
    case Property::X:
      of.matrix = {m.m11(), m.m12(), m.m21(), m.m22(), std::round(number * kPixel.count()), m.dy()};
      break;
    case Property::Y:
      of.matrix = {m.m11(), m.m12(), m.m21(), m.m22(), m.dx(), std::round(number * kPixel.count())};
      break;
    case Property::ScaleX:
    case Property::ScaleY:
    case Property::Rotation:
      setAxes(of, property, number);
      break;
    case Property::Width:
    case Property::Height:
      setSize(of, property, number, stage.budget());
      break;
    case Property::Alpha:
      // Held in 256ths, without the rest.
      of.color.multiply[3] = std::trunc(number * 256 / kPercent) / 256;
      break;
    default:
      return;
  }
  of.steered = true;
}

}  // namespace platform::flash
