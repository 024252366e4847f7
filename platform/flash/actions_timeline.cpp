#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "platform/flash/actions.h"
#include "platform/flash/targets.h"
#include "platform/flash/timeline.h"

namespace platform::flash {

namespace {

constexpr int kFarthestFrame = 1 << 20;  // beyond any timeline

// The frame, from 0, that a value means for a clip: a number from 1, or a label. None for what is
// neither.
std::optional<int> frameOf(ScriptRun& run, const Clip& clip, const Value& value) {
  if (const auto* label = std::get_if<QString>(&value)) {
    if (const auto frame = frameOfLabel(run.stage(), clip, *label)) {
      return frame;
    }
  }
  const double number = std::holds_alternative<QString>(value)
                            ? numberOf(std::get<QString>(value), 5)
                            : toNumber(value, 7);
  if (std::isnan(number) || number < 1) {
    return std::nullopt;
  }
  return static_cast<int>(std::min<double>(number, kFarthestFrame)) - 1;
}

// value may name another clip in front of the frame: "a/b:label".
void goTo(ScriptRun& run, Clip* clip, Value value, int bias, bool play) {
  if (const auto* text = std::get_if<QString>(&value)) {
    const qsizetype colon = text->lastIndexOf(u':');
    if (colon >= 0) {
      clip = asClip(run.resolve(QStringView(*text).first(colon)));
      value = text->mid(colon + 1);
    }
  }
  if (clip == nullptr) {
    return;
  }
  if (const auto frame = frameOf(run, *clip, value)) {
    gotoFrame(run.stage(), *clip, *frame + bias, play);
  }
}

void step(ScriptRun& run, Clip& clip, int by) {
  gotoFrame(run.stage(), clip, std::min(clip.frame + by, clip.timeline.frameCount() - 1), false);
}

void play(ScriptRun& run, ByteReader&) {
  if (Clip* clip = run.target()) {
    clip->playing = true;
  }
}

void stop(ScriptRun& run, ByteReader&) {
  if (Clip* clip = run.target()) {
    clip->playing = false;
  }
}

void nextFrame(ScriptRun& run, ByteReader&) {
  if (Clip* clip = run.target()) {
    step(run, *clip, 1);
  }
}

void previousFrame(ScriptRun& run, ByteReader&) {
  if (Clip* clip = run.target()) {
    step(run, *clip, -1);
  }
}

// The number counts from 0 here, and nowhere else.
void gotoNumber(ScriptRun& run, ByteReader& operand) {
  const int frame = operand.u16();
  if (Clip* clip = run.target()) {
    gotoFrame(run.stage(), *clip, frame, false);
  }
}

void gotoLabel(ScriptRun& run, ByteReader& operand) {
  const QString label = run.decoded(operand);
  if (Clip* clip = run.target()) {
    if (const auto frame = frameOfLabel(run.stage(), *clip, label)) {
      gotoFrame(run.stage(), *clip, *frame, false);
    }
  }
}

void gotoValue(ScriptRun& run, ByteReader& operand) {
  constexpr unsigned kPlayBit = 1;
  constexpr unsigned kBiasBit = 2;
  const unsigned flags = operand.u8();
  const int bias = (flags & kBiasBit) != 0 ? operand.u16() : 0;
  const Value value = run.pop();
  goTo(run, run.target(), value, bias, (flags & kPlayBit) != 0);
}

// Of all addresses only those that speak to the host mean anything here.
void openAddress(ScriptRun& run, const QString& url, const QString& target) {
  constexpr QStringView kPrefix = u"FSCommand:";
  if (url.startsWith(kPrefix, Qt::CaseInsensitive)) {
    run.machine().raiseCommand(url.mid(kPrefix.size()), target);
  }
}

void getUrl(ScriptRun& run, ByteReader& operand) {
  const QString url = run.decoded(operand);
  openAddress(run, url, operand.atEnd() ? QString() : run.decoded(operand));
}

void getUrlFromStack(ScriptRun& run, ByteReader&) {
  // An argument that is missing is empty, also where one that is undefined is a word.
  const bool missing = run.stackSize() < 2;
  const QString target = missing ? QString() : run.popText();
  openAddress(run, run.popText(), target);
}

void setTarget(ScriptRun& run, ByteReader& operand) {
  run.setTarget(run.decoded(operand));
}

void setTargetFromStack(ScriptRun& run, ByteReader&) {
  run.setTarget(run.popText());
}

constexpr std::array kTimelineRows{
    ActionRow{Op::NextFrame, nextFrame},
    ActionRow{Op::PreviousFrame, previousFrame},
    ActionRow{Op::Play, play},
    ActionRow{Op::Stop, stop},
    ActionRow{Op::GotoFrame, gotoNumber},
    ActionRow{Op::GotoLabel, gotoLabel},
    ActionRow{Op::GotoFrame2, gotoValue},
    ActionRow{Op::GetUrl, getUrl},
    ActionRow{Op::GetUrl2, getUrlFromStack},
    ActionRow{Op::SetTarget, setTarget},
    ActionRow{Op::SetTarget2, setTargetFromStack},
};

}  // namespace

bool callTimelineMethod(ScriptRun& run, Clip& clip, const QString& name,
                        const std::vector<Value>& arguments) {
  const Qt::CaseSensitivity sensitivity =
      run.version() <= 6 ? Qt::CaseInsensitive : Qt::CaseSensitive;
  const auto is = [&](QStringView word) { return name.compare(word, sensitivity) == 0; };
  const Value first = arguments.empty() ? Value() : arguments.front();
  if (is(u"gotoAndStop")) {
    goTo(run, &clip, first, 0, false);
  } else if (is(u"gotoAndPlay")) {
    goTo(run, &clip, first, 0, true);
  } else if (is(u"play")) {
    clip.playing = true;
  } else if (is(u"stop")) {
    clip.playing = false;
  } else if (is(u"nextFrame")) {
    step(run, clip, 1);
  } else if (is(u"prevFrame")) {
    step(run, clip, -1);
  } else {
    return false;
  }
  return true;
}

std::span<const ActionRow> timelineActions() {
  return kTimelineRows;
}

}  // namespace platform::flash
