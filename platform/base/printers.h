#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

namespace platform::inline base {

// A kind of sheet that a printer takes. Lengths are millimetres, of the sheet held upright.
struct Paper {
  int code = 0;   // in the list of paper codes (paper_codes.h); 0 where it has none
  QString media;  // what the printer itself calls it
  double width = 0;
  double height = 0;
  double left = 0;  // what the printer cannot reach at the left and at the top
  double top = 0;

  friend bool operator==(const Paper&, const Paper&) = default;
};

enum class Orientation : int { Portrait = 1, Landscape = 2 };
enum class ColorMode : int { Monochrome = 1, Color = 2 };

// How a printer is to print: what its owner may choose.
struct PrinterSettings {
  Orientation orientation = Orientation::Portrait;
  Paper paper;
  ColorMode color = ColorMode::Color;

  // Of the sheet as it is held, in millimetres.
  [[nodiscard]] double sheetWidth() const {
    return orientation == Orientation::Portrait ? paper.width : paper.height;
  }
  [[nodiscard]] double sheetHeight() const {
    return orientation == Orientation::Portrait ? paper.height : paper.width;
  }

  friend bool operator==(const PrinterSettings&, const PrinterSettings&) = default;
};

// What the pages of a job are made as, true to size either way.
enum class PageFormat {
  Pdf,      // one document
  Drawing,  // how many pages there are, as a qint32, and the QPictures of the pages, in a
            // QDataStream
};
// The dots of a drawing.
inline constexpr int kDrawingDotsPerInch = 1200;

// What a printer can do, and how it prints when nobody asks for anything else.
struct PrinterTraits {
  std::vector<Paper> papers;
  bool printsColor = true;
  bool takesPages = true;  // false: it cannot be sent pages made by a program
  PageFormat pages = PageFormat::Pdf;
  // A queue feeds its sheets upright: a sheet held across goes there turned on an upright page, so
  // that nothing on its way turns it once more.
  bool feedsUpright = false;
  PrinterSettings standard;
};

struct PrintJob {
  QString printer;
  QString title;
  QByteArray pages;  // in the printer's format
  PrinterSettings settings;
};

// What became of a job. Of one that was not finished nothing is left behind.
struct PrintResult {
  int job = 0;  // its number; 0 where the printer did not begin it
  bool finished = false;
};

// The printers that the program can use. Nothing is asked of any before the first call. One that
// does not answer is waited for up to some seconds; meanwhile events run, so that these calls
// belong into `Runtime::waitDeaf`.
class Printers {
 public:
  virtual ~Printers() = default;

  struct List {
    QStringList names;
    QString standard;  // empty where there is none, and where the system did not tell it in time
  };
  [[nodiscard]] virtual List list() = 0;

  enum class Access {
    Granted,
    Denied,           // there is no such printer, or it does not answer
    SettingsRefused,  // it does not tell what it can do
  };
  struct Opened {
    Access access = Access::Denied;
    PrinterTraits traits;
  };
  [[nodiscard]] virtual Opened open(const QString& name) = 0;

  // Hands over the whole job. Sizes are kept, the job is never scaled.
  [[nodiscard]] virtual PrintResult print(const PrintJob& job) = 0;
};

// Lets the user choose how a printer prints, in a dialog over the window in use.
class PageSetup {
 public:
  virtual ~PageSetup() = default;
  // settings: those to begin with, and the chosen ones after true; untouched after false.
  [[nodiscard]] virtual bool choose(const QString& printer, const PrinterTraits& traits,
                                    PrinterSettings& settings) = 0;
};

}  // namespace platform::inline base
