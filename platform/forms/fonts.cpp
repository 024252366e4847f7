#include "platform/forms/fonts.h"

#include <QFontMetricsF>
#include <QStringList>
#include <algorithm>

namespace platform {

QFont fontOf(const FontSpec& spec, double pixels) {
  static const QStringList kTahoma{QStringLiteral("Tahoma"), QStringLiteral("Andika"),
                                   QStringLiteral("DejaVu Sans")};
  static const QStringList kArial{QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                  QStringLiteral("DejaVu Sans")};
  QFont font(spec.face == Face::Tahoma ? kTahoma : kArial);
  font.setPixelSize(std::max(1, qRound(pixels)));
  font.setBold(spec.bold);
  return font;
}

Ink inkOf(const QFont& font) {
  const QRectF ink = QFontMetricsF(font).tightBoundingRect(QStringLiteral("ÀÈÇ(gjpqy"));
  return {-ink.top(), ink.bottom()};
}

}  // namespace platform
