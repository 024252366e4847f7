#pragma once

#include <QLabel>
#include <optional>

#include "platform/forms/controls/caption_size.h"
#include "platform/forms/design.h"
#include "platform/forms/text_block.h"

namespace platform::inline forms {

// The widget of a label. A QLabel for what the toolkit knows of it, painted by our own rules.
class LabelWidget final : public QLabel, public FittedCaption {
  Q_OBJECT

 public:
  LabelWidget(QWidget* parent, Align align, bool border, bool mnemonic);

  void setWords(const QString& words);
  // behind: what shows where there is no ground.
  void setColors(QColor ink, std::optional<QColor> ground, QColor behind);
  // strength: of the light that it stands in, 0 for none to 1.
  void setGlow(double strength);
  [[nodiscard]] int fittedCaption() override;

  // A silent one is not there for assistive technology; another speaks for it.
  void setSilent(bool silent) { silent_ = silent; }
  [[nodiscard]] bool isSilent() const { return silent_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void captionSizeChanged() override { update(); }

 private:
  [[nodiscard]] QRect room() const;
  void layOut(const QFont& letters, QSize room);
  // Its ground, or what shows in the place of one, in the light that it stands in.
  [[nodiscard]] QColor litGround() const;
  void paintGlow(QPainter& painter) const;

  Align align_;
  bool border_;
  bool mnemonic_;
  bool silent_ = false;
  QColor ink_ = Qt::black;
  std::optional<QColor> ground_;
  QColor behind_ = Qt::white;
  double glow_ = 0;
  TextBlock block_;
  QString laidText_;
  QFont laidFont_;
  QSize laidRoom_;
};

}  // namespace platform::inline forms
