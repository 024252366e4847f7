#include "platform/base/profile_text.h"

#include "platform/base/system_files.h"
#include "platform/base/text_encoding.h"

namespace platform::inline base {

namespace {

constexpr bool isBlank(char byte) {
  return byte == ' ' || byte == '\t';
}
constexpr bool isBlank(QChar character) {
  return character == u' ' || character == u'\t';
}

// View: QByteArrayView or QStringView.
template <typename View>
View withoutBlanks(View text) {
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

QByteArrayView withoutQuotes(QByteArrayView value) {
  const bool quoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
  return quoted ? value.sliced(1, value.size() - 2) : value;
}

// One line, as a view into the whole text. All that gives a line its form is ASCII, so it can be
// told from the bytes of either encoding.
struct Line {
  enum class Kind { Other, Section, Key };

  Kind kind = Kind::Other;
  QByteArrayView name;   // of the section or key
  QByteArrayView value;  // of a key
  qsizetype begin = 0;   // its first byte in the text
  qsizetype end = 0;     // the byte after its last, its line end not counted
};

Line lineOf(QByteArrayView text, qsizetype begin, qsizetype end) {
  Line line;
  line.begin = begin;
  line.end = end;
  const QByteArrayView content = withoutBlanks(text.sliced(begin, end - begin));
  if (content.isEmpty() || content.front() == ';') return line;
  if (content.front() == '[') {
    const qsizetype close = content.indexOf(']');
    if (close < 0) return line;
    line.kind = Line::Kind::Section;
    line.name = withoutBlanks(content.sliced(1, close - 1));
    return line;
  }
  const qsizetype equals = content.indexOf('=');
  if (equals < 0) return line;
  line.kind = Line::Kind::Key;
  line.name = withoutBlanks(content.first(equals));
  line.value = withoutQuotes(withoutBlanks(content.sliced(equals + 1)));
  return line;
}

// Calls visit(Line) for each line, from the first. CR LF makes one more, empty line in between,
// which means nothing.
template <typename Visit>
void forEachLine(QByteArrayView text, Visit visit) {
  qsizetype begin = byteOrderMarkSize(text);
  while (begin < text.size()) {
    qsizetype end = begin;
    while (end < text.size() && !isLineEnd(text[end])) ++end;
    visit(lineOf(text, begin, end));
    begin = end + 1;
  }
}

QString shortened(QString value) {
  const qsizetype nul = value.indexOf(QChar(u'\0'));
  if (nul >= 0) value.truncate(nul);
  if (value.size() <= ProfileText::kLongestValue) return value;
  const bool splits = value[ProfileText::kLongestValue].isLowSurrogate();
  value.truncate(splits ? ProfileText::kLongestValue - 1 : ProfileText::kLongestValue);
  return value;
}

QString folded(QByteArrayView name, TextEncoding encoding) {
  return decodeText(name, encoding).toCaseFolded();
}

QString folded(const QString& name) {
  return withoutBlanks(QStringView(name)).toString().toCaseFolded();
}

bool hasLineBreakOrNul(const QString& text) {
  return text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar(u'\0'));
}

bool canBeWritten(const QString& section, const QString& key, const QString& value) {
  if (hasLineBreakOrNul(section) || hasLineBreakOrNul(key) || hasLineBreakOrNul(value)) {
    return false;
  }
  const QStringView name = withoutBlanks(QStringView(key));
  return !withoutBlanks(QStringView(section)).isEmpty() && !section.contains(u']') &&
         !name.isEmpty() && !name.contains(u'=') && !name.startsWith(u'[') &&
         !name.startsWith(u';');
}

// Quotes keep what the reader would else take away: blanks at the ends, quotes of the value's own.
QString quotedIfNeeded(const QString& value) {
  const auto isEdge = [](QChar edge) { return isBlank(edge) || edge == u'"'; };
  const bool needed = !value.isEmpty() && (isEdge(value.front()) || isEdge(value.back()));
  return needed ? QLatin1Char('"') + value + QLatin1Char('"') : value;
}

// The line end that the text uses first, the system's where it has none.
QByteArray lineEndOf(const QByteArray& text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') return "\n";
    if (text[i] == '\r') return text.mid(i, 2) == "\r\n" ? "\r\n" : "\r";
  }
  return lineEnd();
}

// Where a value belongs in a text.
struct Place {
  qsizetype lineBegin = -1;  // the line to replace, or -1
  qsizetype lineEnd = -1;
  qsizetype sectionEnd = -1;  // the end of the section's last line that is not empty, or -1
};

Place findPlace(QByteArrayView text, TextEncoding encoding, const QString& section,
                const QString& key) {
  Place place;
  bool inside = false;
  bool sectionOver = false;
  forEachLine(text, [&](const Line& line) {
    if (line.kind == Line::Kind::Section) {
      sectionOver = sectionOver || inside;
      inside = folded(line.name, encoding) == section;
    }
    if (!inside) return;
    const bool isEmpty = withoutBlanks(text.sliced(line.begin, line.end - line.begin)).isEmpty();
    // The first section of the name takes new keys; a match in a later one still counts.
    if (!sectionOver && !isEmpty) place.sectionEnd = line.end;
    if (place.lineBegin < 0 && line.kind == Line::Kind::Key && folded(line.name, encoding) == key) {
      place.lineBegin = line.begin;
      place.lineEnd = line.end;
    }
  });
  return place;
}

}  // namespace

ProfileText::ProfileText(QByteArrayView bytes) {
  const TextEncoding encoding = encodingOf(bytes);
  QString section;
  forEachLine(bytes, [&](const Line& line) {
    if (line.kind == Line::Kind::Section) section = folded(line.name, encoding);
    if (line.kind != Line::Kind::Key || line.name.isEmpty()) return;
    const std::pair name(section, folded(line.name, encoding));
    if (!values_.contains(name)) {
      values_.insert(name, shortened(decodeText(line.value, encoding)));
    }
  });
}

QString ProfileText::value(const QString& section, const QString& key) const {
  return values_.value({folded(section), folded(key)});
}

std::optional<QByteArray> ProfileText::withValue(const QByteArray& text, const QString& section,
                                                 const QString& key, const QString& value) {
  if (!canBeWritten(section, key, value)) return std::nullopt;
  const TextEncoding encoding = encodingOf(text);
  const QByteArray line = encodeText(key + QLatin1Char('=') + quotedIfNeeded(value), encoding);
  const QByteArray lineEnd = lineEndOf(text);
  const Place place = findPlace(text, encoding, folded(section), folded(key));
  QByteArray result = text;
  if (place.lineBegin >= 0) {
    result.replace(place.lineBegin, place.lineEnd - place.lineBegin, line);
  } else if (place.sectionEnd >= 0) {
    result.insert(place.sectionEnd, lineEnd + line);
  } else {
    const bool isOpen = text.size() > byteOrderMarkSize(text) && !isLineEnd(text.back());
    if (isOpen) result += lineEnd;
    result += '[' + encodeText(section, encoding) + ']' + lineEnd + line + lineEnd;
  }
  return result;
}

}  // namespace platform::inline base
