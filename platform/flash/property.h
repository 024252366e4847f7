#pragma once

namespace platform::flash {

// The properties of a clip; scripts and the host number them in this order, from 0.
enum class Property {
  X,
  Y,
  ScaleX,
  ScaleY,
  CurrentFrame,
  TotalFrames,
  Alpha,
  Visible,
  Width,
  Height,
  Rotation,
  Target,
  FramesLoaded,
  Name,
  DropTarget,
  Url,
  HighQuality,
  FocusRect,
  SoundBufTime,
};

}  // namespace platform::flash
