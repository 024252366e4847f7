#include "platform/devices/linux/cups_queues.h"

#include <algorithm>
#include <cstring>
#include <optional>

#include "platform/base/paper_codes.h"

namespace platform::inline devices {

namespace {

constexpr double kPerMillimetre = 100;  // CUPS measures in hundredths of a millimetre
constexpr int kLookAround = 700;        // milliseconds for printers of the network
constexpr int kLandscape = 4;           // of the "orientation-requested" values
constexpr int kReverseLandscape = 5;

// Without one the library asks for a password on the terminal that the program was started from.
const char* noPassword(const char* /*prompt*/, http_t* /*connection*/, const char* /*method*/,
                       const char* /*resource*/, void* /*data*/) {
  return nullptr;
}

QString fullName(const cups_dest_t& dest) {
  const QString name = QString::fromUtf8(dest.name);
  return dest.instance == nullptr ? name : name + u'/' + QString::fromUtf8(dest.instance);
}

Paper paperOf(const cups_size_t& size) {
  const double width = size.width / kPerMillimetre;
  const double height = size.length / kPerMillimetre;
  return {paperCodeOf(width, height), QString::fromUtf8(size.media), width, height,
          size.left / kPerMillimetre, size.top / kPerMillimetre};
}

bool hasSize(const Paper& paper) {
  return paper.width > 0 && paper.height > 0;
}

bool sameSheet(const Paper& a, const Paper& b) {
  return a.width == b.width && a.height == b.height;
}

// A4 where it is among them, else the first. papers: not empty.
const Paper& usualOf(const std::vector<Paper>& papers) {
  const auto a4 = std::find_if(papers.begin(), papers.end(),
                               [](const Paper& paper) { return paper.code == kPaperA4; });
  return a4 == papers.end() ? papers.front() : *a4;
}

}  // namespace

// One queue, found by its name.
class CupsQueues::Queue {
 public:
  Queue(const CupsLibrary& cups, const QString& fullName) : cups_(cups) {
    const QByteArray name = fullName.section(u'/', 0, 0).toUtf8();
    const QByteArray instance = fullName.section(u'/', 1).toUtf8();
    dest_ = cups_.getNamedDest(CUPS_HTTP_DEFAULT, name.constData(),
                               instance.isEmpty() ? nullptr : instance.constData());
    if (dest_ != nullptr) info_ = cups_.copyDestInfo(CUPS_HTTP_DEFAULT, dest_);
  }
  ~Queue() {
    if (info_ != nullptr) cups_.freeDestInfo(info_);
    if (dest_ != nullptr) cups_.freeDests(1, dest_);
  }
  Queue(const Queue&) = delete;
  Queue& operator=(const Queue&) = delete;

  [[nodiscard]] cups_dest_t* dest() const { return dest_; }
  [[nodiscard]] cups_dinfo_t* info() const { return info_; }

  [[nodiscard]] std::vector<Paper> papers() const {
    std::vector<Paper> result;
    const int count = cups_.getDestMediaCount(CUPS_HTTP_DEFAULT, dest_, info_, 0);
    for (int i = 0; i < count; ++i) {
      cups_size_t size;
      if (cups_.getDestMediaByIndex(CUPS_HTTP_DEFAULT, dest_, info_, i, 0, &size) == 0) continue;
      const Paper paper = paperOf(size);
      const bool isRange = std::strncmp(size.media, "custom_m", 8) == 0;
      const bool known = std::any_of(result.begin(), result.end(),
                                     [&](const Paper& other) { return sameSheet(other, paper); });
      if (!isRange && !known && hasSize(paper)) result.push_back(paper);
    }
    return result;
  }

  // Where the queue names none, the library's own: a user's choice, or Letter. Nothing where the
  // paper that is named has no size: of a roll the library knows none.
  [[nodiscard]] std::optional<Paper> standardPaper() const {
    cups_size_t size;
    const QByteArray name = standardPaperName();
    const int told =
        name.isEmpty()
            ? cups_.getDestMediaDefault(CUPS_HTTP_DEFAULT, dest_, info_, 0, &size)
            : cups_.getDestMediaByName(CUPS_HTTP_DEFAULT, dest_, info_, name.constData(), 0, &size);
    if (told == 0) return std::nullopt;
    const Paper paper = paperOf(size);
    return hasSize(paper) ? std::optional(paper) : std::nullopt;
  }

  // As the library knows the paper. A user's choice may bear the short name of the printer's driver
  // ("A3"), and stand under the name that the driver has for the option.
  [[nodiscard]] QByteArray standardPaperName() const {
    const char* drivers = chosen("media") == nullptr ? chosen("PageSize") : nullptr;
    const QByteArray name = drivers != nullptr ? QByteArray(drivers) : standard("media");
    const pwg_media_t* known = cups_.mediaForPPD(name.constData());
    return known == nullptr ? name : QByteArray(known->pwg);
  }

  [[nodiscard]] bool supports(const char* attribute, const char* value, bool ifUntold) const {
    ipp_attribute_t* supported =
        cups_.findDestSupported(CUPS_HTTP_DEFAULT, dest_, info_, attribute);
    return supported == nullptr ? ifUntold : cups_.containsString(supported, value) != 0;
  }

  // As the user has set it for the queue, or as the queue itself does.
  [[nodiscard]] QByteArray standard(const char* attribute) const {
    if (const char* own = chosen(attribute)) return own;
    ipp_attribute_t* value = cups_.findDestDefault(CUPS_HTTP_DEFAULT, dest_, info_, attribute);
    if (value == nullptr) return {};
    const char* text = cups_.getString(value, 0, nullptr);
    return text != nullptr ? QByteArray(text) : QByteArray::number(cups_.getInteger(value, 0));
  }

 private:
  // What the user has set for the queue; null where nothing.
  [[nodiscard]] const char* chosen(const char* option) const {
    return cups_.getOption(option, dest_->num_options, dest_->options);
  }

  const CupsLibrary& cups_;
  cups_dest_t* dest_ = nullptr;
  cups_dinfo_t* info_ = nullptr;
};

int CupsQueues::enumerate(cups_ptype_t kinds, int milliseconds, const Found& found) const {
  struct Search {
    const Found& found;
    int count = 0;
  } search{found};
  cups_.enumDests(
      CUPS_DEST_FLAGS_NONE, milliseconds, nullptr, kinds, CUPS_PRINTER_DISCOVERED,
      [](void* data, unsigned flags, cups_dest_t* dest) {
        auto& mine = *static_cast<Search*>(data);
        if ((flags & CUPS_DEST_FLAGS_REMOVED) == 0) {
          mine.found(fullName(*dest), dest->is_default != 0);
          ++mine.count;
        }
        return 1;
      },
      &search);
  return search.count;
}

void CupsQueues::list(const Found& found) const {
  cups_.setPasswordCB2(noPassword, nullptr);
  if (enumerate(0, 0, found) == 0) enumerate(CUPS_PRINTER_DISCOVERED, kLookAround, found);
}

Printers::Opened CupsQueues::open(const QString& name) const {
  cups_.setPasswordCB2(noPassword, nullptr);
  const Queue queue(cups_, name);
  if (queue.dest() == nullptr) return {};
  Printers::Opened refused{Printers::Access::SettingsRefused, {}};
  if (queue.info() == nullptr) return refused;
  PrinterTraits traits;
  // All papers first: asked for one by its name before it has listed them, the library may answer
  // with another.
  traits.papers = queue.papers();
  const std::optional<Paper> paper = queue.standardPaper();
  if (traits.papers.empty() && paper) traits.papers.push_back(*paper);
  if (traits.papers.empty()) return refused;
  traits.standard.paper = paper.value_or(usualOf(traits.papers));
  traits.printsColor = queue.supports("print-color-mode", "color", false);
  traits.takesPages = queue.supports("document-format", "application/pdf", true);
  traits.feedsUpright = true;
  const bool gray = !traits.printsColor || queue.standard("print-color-mode") == "monochrome";
  traits.standard.color = gray ? ColorMode::Monochrome : ColorMode::Color;
  const int turned = queue.standard("orientation-requested").toInt();
  if (turned == kLandscape || turned == kReverseLandscape) {
    traits.standard.orientation = Orientation::Landscape;
  }
  return {Printers::Access::Granted, traits};
}

// Pages that are not the job's last wait at the server; nothing at all is the last.
bool CupsQueues::send(const Queue& queue, int job, const PrintJob& content, Pages which) const {
  const QByteArray title = content.title.toUtf8();
  // In pieces, so that a server that stops taking them is noticed.
  constexpr qsizetype kPiece = 65536;
  if (cups_.startDestDocument(CUPS_HTTP_DEFAULT, queue.dest(), queue.info(), job, title.constData(),
                              "application/pdf", 0, nullptr,
                              which == Pages::End ? 1 : 0) != HTTP_STATUS_CONTINUE) {
    return false;
  }
  const QByteArray pages = which == Pages::All ? content.pages : QByteArray();
  for (qsizetype from = 0; from < pages.size(); from += kPiece) {
    const qsizetype length = std::min(kPiece, pages.size() - from);
    if (cups_.writeRequestData(CUPS_HTTP_DEFAULT, pages.constData() + from, size_t(length)) !=
        HTTP_STATUS_CONTINUE) {
      return false;
    }
  }
  return cups_.finishDestDocument(CUPS_HTTP_DEFAULT, queue.dest(), queue.info()) <=
         IPP_STATUS_OK_EVENTS_COMPLETE;
}

PrintResult CupsQueues::print(const PrintJob& job, const std::function<bool()>& wanted) const {
  cups_.setPasswordCB2(noPassword, nullptr);
  const Queue queue(cups_, job.printer);
  if (queue.info() == nullptr || !wanted()) return {};
  cups_option_t* options = nullptr;
  int count = 0;
  const auto add = [&](const char* name, const QByteArray& value) {
    count = cups_.addOption(name, value.constData(), count, &options);
  };
  add("media", job.settings.paper.media.toUtf8());
  // The pages are true to size and upright as they are: nothing on their way may fit or turn them,
  // whatever the queue does by default.
  add("print-scaling", "none");
  add("orientation-requested", "3");
  add("print-color-mode", job.settings.color == ColorMode::Monochrome ? "monochrome" : "color");
  PrintResult result;
  const bool created = cups_.createDestJob(CUPS_HTTP_DEFAULT, queue.dest(), queue.info(),
                                           &result.job, job.title.toUtf8().constData(), count,
                                           options) <= IPP_STATUS_OK_EVENTS_COMPLETE;
  cups_.freeOptions(count, options);
  if (!created) return {};
  // The server prints nothing before it has been told of the end: what has been given up by then
  // never comes out.
  result.finished = wanted() && send(queue, result.job, job, Pages::All) && wanted() &&
                    send(queue, result.job, job, Pages::End) && wanted();
  if (!result.finished) cups_.cancelDestJob(CUPS_HTTP_DEFAULT, queue.dest(), result.job);
  return result;
}

}  // namespace platform::inline devices
