#pragma once

#include <QLabel>
#include <optional>

#include "platform/forms/design.h"
#include "platform/forms/text_block.h"

namespace platform {

// The widget of a label. A QLabel for what the toolkit knows of it, painted by our own rules.
class LabelWidget final : public QLabel {
  Q_OBJECT

 public:
  LabelWidget(QWidget* parent, Align align, bool border, bool mnemonic);

  // behind: what shows where there is no ground.
  void setColours(QColor ink, std::optional<QColor> ground, QColor behind);

  // A silent one is not there for assistive technology; another speaks for it.
  void setSilent(bool silent) { silent_ = silent; }
  [[nodiscard]] bool isSilent() const { return silent_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Align align_;
  bool border_;
  bool mnemonic_;
  bool silent_ = false;
  QColor ink_ = Qt::black;
  std::optional<QColor> ground_;
  QColor behind_ = Qt::white;
  TextBlock block_;
  QString laidText_;
  QFont laidFont_;
  QSize laidRoom_;
};

}  // namespace platform
