#pragma once

#include <optional>
#include <vector>

namespace platform::inline forms {

class CaptionSize;

// A widget whose caption may have to be set in smaller letters than it asks for.
class FittedCaption {
 public:
  FittedCaption() = default;
  virtual ~FittedCaption();
  FittedCaption(const FittedCaption&) = delete;
  FittedCaption& operator=(const FittedCaption&) = delete;

  // Sets the caption in letters no larger than those of others; null for none.
  void shareCaptionSize(CaptionSize* shared);
  // The pixel size of letters that the caption has room for, at most that of the font.
  [[nodiscard]] virtual int fittedCaption() = 0;
  // The pixel size that the caption is set in.
  [[nodiscard]] int captionSize() { return sharedSize(fittedCaption()); }

 protected:
  // Paints the widget anew, since the shared size may be another.
  virtual void captionSizeChanged() = 0;
  // Called at another caption, font or room.
  void captionChanged();
  // The pixel size to set the caption in, where its font asks for `pixels`.
  [[nodiscard]] int sharedSize(int pixels) const;

 private:
  friend class CaptionSize;
  CaptionSize* shared_ = nullptr;
};

// The size of letters that captions of one kind share, so that a form does not speak in ten voices:
// that of the caption which needs the smallest.
class CaptionSize {
 public:
  // Many: one that needs much smaller letters than the rest keeps them to itself. Pair: all are of
  // one size whatever they need.
  enum class Kind { Many, Pair };
  explicit CaptionSize(Kind kind = Kind::Many) : kind_(kind) {}
  ~CaptionSize();
  CaptionSize(const CaptionSize&) = delete;
  CaptionSize& operator=(const CaptionSize&) = delete;

  void add(FittedCaption& caption);
  void remove(const FittedCaption& caption);
  // A caption, a font or a size has changed.
  void changed();
  // Pixels; at most what the smallest needs, among many leaving out those far below the largest.
  [[nodiscard]] int pixelSize();

 private:
  Kind kind_;
  std::vector<FittedCaption*> captions_;
  std::optional<int> pixelSize_;
};

}  // namespace platform::inline forms
