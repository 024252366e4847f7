#include "platform/base/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace platform::inline base {

namespace {

// The digits of a number without its sign; the whole part has no leading zeros and so is empty for
// a number below 1.
struct Digits {
  std::string whole;
  std::string fraction;

  [[nodiscard]] bool areAllZero() const {
    return whole.empty() && fraction.find_first_not_of('0') == std::string::npos;
  }
};

Digits digitsOf(double magnitude) {
  // The longest are the smallest float of all (a zero, the point, 324 places) and the largest (309
  // digits).
  std::array<char, 400> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                          std::chars_format::fixed);
  Q_ASSERT(error == std::errc());
  const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  const std::size_t point = text.find('.');
  Digits digits;
  digits.whole = text.substr(0, point);
  if (point != std::string_view::npos) digits.fraction = text.substr(point + 1);
  digits.whole.erase(0, digits.whole.find_first_not_of('0'));
  return digits;
}

// Brings the fraction to exactly `places` places, half away from zero.
void roundTo(std::size_t places, Digits& digits) {
  const bool up = digits.fraction.size() > places && digits.fraction[places] >= '5';
  digits.fraction.resize(places, '0');
  if (!up) return;
  for (std::string* part : {&digits.fraction, &digits.whole}) {
    for (auto digit = part->rbegin(); digit != part->rend(); ++digit) {
      if (*digit != '9') {
        ++*digit;
        return;
      }
      *digit = '0';
    }
  }
  digits.whole.insert(0, 1, '1');
}

constexpr bool isPlace(QChar character) {
  return character == u'0' || character == u'#';
}

qsizetype countPlaces(QStringView part) {
  qsizetype count = 0;
  for (const QChar character : part) count += isPlace(character) ? 1 : 0;
  return count;
}

QString writeWhole(const std::string& whole, QStringView part, bool hasPoint) {
  const qsizetype places = countPlaces(part);
  const auto size = static_cast<qsizetype>(whole.size());
  QString text;
  // Digits are told by the place that they stand in, counted from the left; the first places may
  // have none.
  qsizetype digit = size - places;
  const QString surplus = digit > 0 ? QString::fromLatin1(whole.data(), digit) : QString();
  bool begun = digit > 0;
  bool surplusWritten = false;
  for (const QChar character : part) {
    if (!isPlace(character)) {
      text += character;
      continue;
    }
    if (!surplusWritten) text += surplus;
    surplusWritten = true;
    if (digit >= 0) {
      text += QLatin1Char(whole[static_cast<std::size_t>(digit)]);
      begun = true;
    } else if (begun || character == u'0') {
      text += u'0';
      begun = true;
    }
    ++digit;
  }
  // A picture like ".00" has no place before its point; the whole part stands there all the same.
  if (!surplusWritten && hasPoint) text += surplus;
  return text;
}

QString writeFraction(const std::string& fraction, QStringView part) {
  // Up to the last place that is either required or not zero.
  qsizetype needed = 0;
  qsizetype place = 0;
  for (const QChar character : part) {
    if (!isPlace(character)) continue;
    if (character == u'0' || fraction[static_cast<std::size_t>(place)] != '0') needed = place + 1;
    ++place;
  }
  QString text;
  place = 0;
  for (const QChar character : part) {
    if (!isPlace(character)) {
      text += character;
    } else if (place < needed) {
      text += QLatin1Char(fraction[static_cast<std::size_t>(place++)]);
    }
  }
  return text;
}

}  // namespace

QString leadingBlank(qint64 value) {
  return value < 0 ? plain(value) : QLatin1Char(' ') + plain(value);
}

QString plain(qint64 value) {
  return QString::number(value);
}

QString formatPicture(double value, QStringView picture) {
  if (!std::isfinite(value)) throw RunTimeError(RunTimeError::Overflow);
  const qsizetype point = picture.indexOf(u'.');
  const bool hasPoint = point >= 0;
  const QStringView wholePart = hasPoint ? picture.first(point) : picture;
  const QStringView fractionPart = hasPoint ? picture.sliced(point + 1) : QStringView();

  Digits digits = digitsOf(std::fabs(value));
  roundTo(static_cast<std::size_t>(countPlaces(fractionPart)), digits);

  QString text;
  if (std::signbit(value) && !digits.areAllZero()) text += u'-';
  text += writeWhole(digits.whole, wholePart, hasPoint);
  if (hasPoint) text += QLatin1Char('.') + writeFraction(digits.fraction, fractionPart);
  return text;
}

double leadingNumber(QStringView text) {
  std::string number;
  bool negative = false;
  bool signAllowed = true;
  bool pointSeen = false;
  bool large = false;
  for (const QChar character : text) {
    if (character == u' ') continue;
    if (signAllowed && (character == u'-' || character == u'+')) {
      negative = character == u'-';
    } else if (isNumericCharacter(character)) {
      number += static_cast<char>(character.unicode());
      large = large || (!pointSeen && character != u'0');
    } else if (character == u'.' && !pointSeen) {
      number += '.';
      pointSeen = true;
    } else {
      break;
    }
    signAllowed = false;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value,
                                            std::chars_format::fixed);
  // Out of range is either way: too large, or a fraction too small to tell from 0.
  if (error == std::errc::result_out_of_range) {
    value = large ? std::numeric_limits<double>::infinity() : 0;
  } else if (error != std::errc()) {
    value = 0;
  }
  return negative && value != 0 ? -value : value;
}

QString trimBlanks(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  while (text.endsWith(u' ')) text.chop(1);
  return text.toString();
}

qint64 roundHalfEven(double value) {
  double rounded = std::floor(value);
  const double over = value - rounded;
  if (over > 0.5 || (over == 0.5 && std::fmod(rounded, 2) != 0)) rounded += 1;
  // Written so that what is not a number fails, too. Both bounds are exact as floats.
  if (!(rounded >= -0x1p63 && rounded < 0x1p63)) throw RunTimeError(RunTimeError::Overflow);
  return static_cast<qint64>(rounded);
}

}  // namespace platform::inline base
