#include "platform/devices/windows/printer_queues.h"

#include <windows.h>
// After the system's own.
#include <winspool.h>

#include <QDataStream>
#include <QPainter>
#include <QPicture>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <vector>

#include "platform/base/paper_codes.h"
#include "platform/base/twips.h"

namespace platform::inline devices {

namespace {

constexpr double kPerMillimetre = 10;  // the system measures papers in tenths of a millimetre
constexpr int kLastPaperCode = 68;

std::wstring wide(const QString& text) {
  return text.toStdWString();
}

// A printer, open for questions; null where there is none of that name.
class Printer {
 public:
  explicit Printer(const QString& name) : name_(wide(name)) {
    if (::OpenPrinterW(name_.data(), &handle_, nullptr) == 0) handle_ = nullptr;
  }
  ~Printer() {
    if (handle_ != nullptr) ::ClosePrinter(handle_);
  }
  Printer(const Printer&) = delete;
  Printer& operator=(const Printer&) = delete;

  [[nodiscard]] bool isOpen() const { return handle_ != nullptr; }

  // How it prints when nobody asks for anything else; false where it does not tell.
  [[nodiscard]] bool readSettings() {
    const LONG size = ::DocumentPropertiesW(nullptr, handle_, name_.data(), nullptr, nullptr, 0);
    if (size < LONG(sizeof(DEVMODEW))) return false;
    room_.resize(std::size_t(size));
    return ::DocumentPropertiesW(nullptr, handle_, name_.data(), settings(), nullptr,
                                 DM_OUT_BUFFER) == IDOK;
  }
  [[nodiscard]] DEVMODEW* settings() { return reinterpret_cast<DEVMODEW*>(room_.data()); }

  [[nodiscard]] int capability(WORD which) {
    return ::DeviceCapabilitiesW(name_.c_str(), nullptr, which, nullptr, settings());
  }
  // A list that the printer has, of `letters` elements for each entry; empty where it has none.
  template <class Element>
  [[nodiscard]] std::vector<Element> list(WORD which, int letters = 1) {
    const int count = capability(which);
    if (count <= 0) return {};
    std::vector<Element> result(std::size_t(count) * std::size_t(letters));
    const int told = ::DeviceCapabilitiesW(name_.c_str(), nullptr, which,
                                           reinterpret_cast<LPWSTR>(result.data()), settings());
    return told == count ? result : std::vector<Element>();
  }

  // What the printer cannot reach at the left and at the top of a sheet held upright, in
  // millimetres: the same for all its papers.
  [[nodiscard]] QPointF margin() {
    HDC context = ::CreateICW(L"WINSPOOL", name_.c_str(), nullptr, settings());
    if (context == nullptr) return {};
    const auto millimetres = [context](int offset, int resolution) {
      const int dots = ::GetDeviceCaps(context, resolution);
      return dots <= 0 ? 0 : ::GetDeviceCaps(context, offset) * Twips::kMillimetresPerInch / dots;
    };
    QPointF margin(millimetres(PHYSICALOFFSETX, LOGPIXELSX),
                   millimetres(PHYSICALOFFSETY, LOGPIXELSY));
    ::DeleteDC(context);
    return settings()->dmOrientation == DMORIENT_LANDSCAPE ? margin.transposed() : margin;
  }

 private:
  std::wstring name_;
  HANDLE handle_ = nullptr;
  std::vector<char> room_;
};

std::vector<Paper> papersOf(Printer& printer) {
  constexpr int kLetters = 64;
  const auto codes = printer.list<WORD>(DC_PAPERS);
  const auto sizes = printer.list<POINT>(DC_PAPERSIZE);
  const auto names = printer.list<wchar_t>(DC_PAPERNAMES, kLetters);
  const std::size_t count = std::min({codes.size(), sizes.size(), names.size() / kLetters});
  const QPointF margin = printer.margin();
  std::vector<Paper> papers;
  for (std::size_t i = 0; i < count; ++i) {
    const double width = double(sizes[i].x) / kPerMillimetre;
    const double height = double(sizes[i].y) / kPerMillimetre;
    if (width <= 0 || height <= 0) continue;
    const wchar_t* name = names.data() + i * kLetters;
    const wchar_t* end = std::find(name, name + kLetters, L'\0');
    const bool known = codes[i] >= 1 && codes[i] <= kLastPaperCode;
    papers.push_back({known ? int(codes[i]) : paperCodeOf(width, height),
                      QString::fromWCharArray(name, end - name), width, height, margin.x(),
                      margin.y()});
  }
  return papers;
}

// The paper that is in use, A4 where nobody knows it, else the first. papers: not empty.
const Paper& usualOf(const std::vector<Paper>& papers, int code) {
  for (const int wanted : {code, kPaperA4}) {
    const auto found = std::ranges::find(papers, wanted, &Paper::code);
    if (found != papers.end()) return *found;
  }
  return papers.front();
}

// Whether the printer takes the paper, and the way in which it is held. A whole layout it would
// refuse for its margins: the pages go from edge to edge, so that nothing on their way fits them to
// what the printer can reach.
bool setUp(QPrinter& printer, const PrinterSettings& settings) {
  const Paper& paper = settings.paper;
  printer.setFullPage(true);
  printer.setColorMode(settings.color == ColorMode::Monochrome ? QPrinter::GrayScale
                                                               : QPrinter::Color);
  return printer.setPageSize(QPageSize(QSizeF(paper.width, paper.height), QPageSize::Millimeter,
                                       paper.media, QPageSize::FuzzyMatch)) &&
         printer.setPageOrientation(settings.orientation == Orientation::Landscape
                                        ? QPageLayout::Landscape
                                        : QPageLayout::Portrait);
}

// The pages of a drawing, one after the other; false where the printer does not take one, and where
// the job is wanted no longer.
bool draw(QPrinter& printer, const QByteArray& drawing, const std::function<bool()>& wanted) {
  QDataStream pages(drawing);
  qint32 count = 0;
  pages >> count;
  QPainter painter(&printer);
  bool good = painter.isActive();
  for (qint32 i = 0; good && i < count; ++i) {
    QPicture page;
    pages >> page;
    good = pages.status() == QDataStream::Ok && wanted() && (i == 0 || printer.newPage());
    if (!good) break;
    painter.save();
    // A picture is played as large as on the screen, whatever the printer's own dots.
    const double scale = double(page.logicalDpiX()) / kDrawingDotsPerInch;
    painter.scale(scale, scale);
    painter.drawPicture(0, 0, page);
    painter.restore();
  }
  // It prints nothing of a job that was given up before its end.
  if (!good) printer.abort();
  return painter.end() && good;
}

}  // namespace

void PrinterQueues::list(const Found& found) const {
  constexpr DWORD kLevel = 5;
  constexpr DWORD kWhich = PRINTER_ENUM_LOCAL | PRINTER_ENUM_CONNECTIONS;
  DWORD size = 0;
  DWORD count = 0;
  ::EnumPrintersW(kWhich, nullptr, kLevel, nullptr, 0, &size, &count);
  std::vector<BYTE> room(size);
  if (size == 0 ||
      ::EnumPrintersW(kWhich, nullptr, kLevel, room.data(), size, &size, &count) == 0) {
    return;
  }
  const QString standard = QPrinterInfo::defaultPrinterName();
  const auto* printers = reinterpret_cast<const PRINTER_INFO_5W*>(room.data());
  for (DWORD i = 0; i < count; ++i) {
    // Printers on these ports ask for the name of a file.
    const QString port = QString::fromWCharArray(printers[i].pPortName);
    const bool asks = port == u"PORTPROMPT:" || port == u"FILE:";
    const QString name = QString::fromWCharArray(printers[i].pPrinterName);
    if (!asks) found(name, name == standard);
  }
}

Printers::Opened PrinterQueues::open(const QString& name) const {
  Printer printer(name);
  if (!printer.isOpen()) return {};
  const Printers::Opened refused{Printers::Access::SettingsRefused, {}};
  if (!printer.readSettings()) return refused;
  PrinterTraits traits;
  traits.papers = papersOf(printer);
  if (traits.papers.empty()) return refused;
  const DEVMODEW& settings = *printer.settings();
  traits.pages = PageFormat::Drawing;
  traits.standard.paper = usualOf(traits.papers, settings.dmPaperSize);
  traits.printsColor = printer.capability(DC_COLORDEVICE) == 1;
  const bool gray = !traits.printsColor ||
                    ((settings.dmFields & DM_COLOR) != 0 && settings.dmColor == DMCOLOR_MONOCHROME);
  traits.standard.color = gray ? ColorMode::Monochrome : ColorMode::Color;
  if (settings.dmOrientation == DMORIENT_LANDSCAPE) {
    traits.standard.orientation = Orientation::Landscape;
  }
  return {Printers::Access::Granted, traits};
}

PrintResult PrinterQueues::print(const PrintJob& job, const std::function<bool()>& wanted) const {
  const QPrinterInfo info = QPrinterInfo::printerInfo(job.printer);
  if (info.isNull() || !wanted()) return {};
  QPrinter printer(info, QPrinter::HighResolution);
  printer.setDocName(job.title);
  // A paper or a way to hold it that the printer does not take is no sheet true to size.
  if (!setUp(printer, job.settings)) return {};
  PrintResult result{1, false};
  result.finished = draw(printer, job.pages, wanted) && wanted();
  return result;
}

}  // namespace platform::inline devices
