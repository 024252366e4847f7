#include "platform/forms/fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>
#include <QWidget>
#include <algorithm>
#include <numeric>
#include <vector>

namespace platform::inline forms {

namespace {

const QString kTahoma = QStringLiteral("Tahoma");
const QString kArial = QStringLiteral("Arial");

// Fonts that have been measured. To measure one takes as long as to paint a word, and at each
// painting the few of a form are asked for again.
struct Measured {
  QFont font;
  Ink ink;
};
std::vector<Measured>& measured() {
  static std::vector<Measured> fonts;
  return fonts;
}

Ink measure(const QFont& font) {
  const QRectF ink = QFontMetricsF(font).tightBoundingRect(QStringLiteral("ÀÈÇ(gjpqy"));
  return {-ink.top(), ink.bottom()};
}

}  // namespace

void addFontsIn(const QString& folder) {
  measured().clear();
  const QDir fonts(folder, QStringLiteral("*.ttf"), QDir::Name, QDir::Files);
  for (const QString& file : fonts.entryList()) {
    QFontDatabase::addApplicationFont(fonts.filePath(file));
  }
}

QFont fontNamed(const QString& name, double pixels, bool bold) {
  static const QStringList kLikeTahoma{kTahoma, QStringLiteral("Andika"),
                                       QStringLiteral("DejaVu Sans")};
  static const QStringList kLikeArial{kArial, QStringLiteral("Liberation Sans"),
                                      QStringLiteral("DejaVu Sans")};
  QFont font(name == kTahoma ? kLikeTahoma : name == kArial ? kLikeArial : QStringList{name});
  font.setPixelSize(std::max(1, qRound(pixels)));
  font.setBold(bold);
  return font;
}

QFont fontOf(const FontSpec& spec, double pixels) {
  return fontNamed(spec.face == Face::Tahoma ? kTahoma : kArial, pixels, spec.bold);
}

double pixelsBeside(int height, double smallest) {
  constexpr double kShare = 0.021;
  constexpr double kLargest = 48;
  return std::clamp(height * kShare, smallest, kLargest);
}

double pixelsOver(const QWidget* window, double smallest) {
  if (window == nullptr) return smallest;
  while (window->parentWidget() != nullptr) window = window->parentWidget()->window();
  return pixelsBeside(window->height(), smallest);
}

Ink inkOf(const QFont& font) {
  constexpr std::size_t kMost = 24;  // more than a form has
  std::vector<Measured>& fonts = measured();
  const auto known = std::ranges::find(fonts, font, &Measured::font);
  if (known != fonts.end()) return known->ink;
  if (fonts.size() == kMost) fonts.erase(fonts.begin());
  return fonts.emplace_back(Measured{font, measure(font)}).ink;
}

int baseLineIn(const QRect& room, const QFont& font) {
  const Ink ink = inkOf(font);
  return qRound(room.top() + (room.height() - ink.height()) / 2 + ink.above);
}

int largestThatFits(int wanted, int smallest, const std::function<bool(int)>& fits) {
  if (wanted <= smallest || fits(wanted)) return wanted;
  int fitting = smallest;
  int tooLarge = wanted;
  while (tooLarge - fitting > 1) {
    const int between = std::midpoint(fitting, tooLarge);
    (fits(between) ? fitting : tooLarge) = between;
  }
  return fitting;
}

}  // namespace platform::inline forms
