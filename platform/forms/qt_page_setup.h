#pragma once

#include <functional>

#include "platform/base/printers.h"

class QWidget;

namespace platform::inline forms {

// The words of the page set-up, in the language of the moment.
struct PageSetupWords {
  QString title;
  QString paper;
  QString orientation;
  QString portrait;
  QString landscape;
  QString color;
  QString inColor;
  QString inGray;
  QString ok;
  QString cancel;
};

// The page set-up of a printer as a dialog: paper, direction, colours. Worked by keyboard alone:
// Tab and arrows, Enter for OK, Esc to give up.
class QtPageSetup final : public PageSetup {
 public:
  // words: asked at each dialog. paperName: how a kind of paper is called. parent: the window that
  // the dialog stands over.
  QtPageSetup(std::function<PageSetupWords()> words,
              std::function<QString(const Paper& paper)> paperName,
              std::function<QWidget*()> parent)
      : words_(std::move(words)), paperName_(std::move(paperName)), parent_(std::move(parent)) {}

  [[nodiscard]] bool choose(const QString& printer, const PrinterTraits& traits,
                            PrinterSettings& settings) override;

 private:
  std::function<PageSetupWords()> words_;
  std::function<QString(const Paper&)> paperName_;
  std::function<QWidget*()> parent_;
};

}  // namespace platform::inline forms
