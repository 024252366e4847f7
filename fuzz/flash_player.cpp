// Any bytes as a movie, read, played and drawn. The first byte of the input tells how many of the
// bytes behind it are a script of what the host does meanwhile; the rest is the file. A file that
// begins with "FWS" or "CWS" can be put in as it is: its first byte, 'F' or 'C', is then a script's
// length, so such inputs are taken whole, with a fixed script.
//
// Each step, its loading, a call of the host, a picture, may take a second and 64 MB; one that
// takes more ends the run. This build is several times as slow as the program: what charges its
// work the clock ends in time all the same; for the rest, as letting go of memory, a second of the
// program counts as three here.
#include <sanitizer/allocator_interface.h>

#include <QImage>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>

#include "platform/flash/limits.h"
#include "platform/flash/movie_error.h"
#include "platform/flash/movie_reader.h"
#include "platform/flash/player.h"
#include "platform/flash/renderer.h"

using platform::flash::Bytes;
using platform::flash::Player;
using platform::flash::Renderer;
using platform::flash::Scene;

namespace {

// Ends the run where a promise is broken; assert() would not in an optimised build.
void require(bool promise) {
  if (!promise) std::abort();
}

// What is allocated now, and the most since a step began, in bytes.
std::size_t allocated = 0;
std::size_t peak = 0;

void onAllocation(const volatile void*, std::size_t size) {
  allocated += size;
  peak = std::max(peak, allocated);
}

void onRelease(const volatile void* place) {
  if (place != nullptr) allocated -= __sanitizer_get_allocated_size(place);
}

// Does a step and sees to it that it keeps to what it may take.
template <typename Do>
void step(const char* what, Do make) {
  constexpr std::int64_t kMostTime = 3000;                    // milliseconds
  constexpr std::size_t kMostMemory = std::size_t{64} << 20;  // bytes
  static std::int64_t slowest = 100;
  static std::size_t largest = std::size_t{16} << 20;
  const auto now = [] { return platform::flash::Budget::processorTime() / 1'000'000; };
  const std::int64_t begin = now();
  const std::size_t before = peak = allocated;
  make();
  const std::int64_t took = now() - begin;
  const std::size_t held = peak - before;
  if (took > slowest || held > largest) {
    slowest = std::max(slowest, took);
    largest = std::max(largest, held);
    std::fprintf(stderr, "%s: %lld ms, %zu MB\n", what, static_cast<long long>(took), held >> 20U);
  }
  require(took <= kMostTime && held <= kMostMemory);
}

constexpr std::uint8_t kFixedScript[] = {0, 0, 9, 10, 11, 2, 1, 0, 7, 5, 1, 50, 6, 0, 8};

class Host {
 public:
  Host(Bytes script, std::shared_ptr<const platform::flash::Movie> movie) : script_(script) {
    step("the first frame", [&] {
      player_.emplace(std::move(movie), [this](const QString&, const QString&) { ++commands_; });
    });
    checkCommands();
  }

  void run() {
    while (at_ < script_.size()) {
      step("a call", [this] { call(); });
      step("a question", [this] {
        (void)player_->showsHand();
        (void)player_->canChange();
      });
      checkCommands();
      require(player_->currentFrame() >= 1);
      require(player_->currentFrame() <= player_->movie().timeline.frameCount());
    }
    step("a picture", [this] { draw(); });
    step("the end", [this] { player_.reset(); });
  }

 private:
  std::uint8_t next() { return at_ < script_.size() ? script_[at_++] : 0; }

  QString name() {
    const auto number = next();
    const char* const prefixes[] = {"u", "da", "", "/", "a/", "_root.", "../", "instance"};
    return QString::fromLatin1(prefixes[number % 8]) + QString::number(number / 8);
  }

  QPointF point() {
    const double x = next();
    return {x, double(next())};
  }

  void call() {
    switch (next() % 11) {
      case 0:
      case 1:
        player_->tick();
        break;
      case 2:
        player_->gotoFrame(next() - 1);
        break;
      case 3:
        player_->play();
        break;
      case 4:
        player_->stop();
        break;
      case 5: {
        const QString target = name();
        const auto property = platform::flash::Property(next() % 20);
        player_->setProperty(target, property, QString::number(next() - 100));
        (void)player_->property(target, property);
        break;
      }
      case 6:
        player_->mouseLeave();
        break;
      case 7:
        player_->mouseMove(point());
        break;
      case 8:
        draw();
        break;
      case 9:
        player_->mousePress(point());
        break;
      default:
        player_->mouseRelease(point());
        break;
    }
  }

  void draw() {
    const Scene now = player_->scene();
    (void)platform::flash::differences(last_, now);
    last_ = now;
    QImage image(192, 108, QImage::Format_RGB32);
    renderer_.paint(last_, QTransform::fromScale(0.05, 0.05), 0xFFFFFFFF, image);
  }

  // A call from outside may raise so many commands and no more.
  void checkCommands() {
    require(commands_ <= platform::flash::limits::kCommandsPerTick);
    commands_ = 0;
  }

  Bytes script_;
  std::size_t at_ = 0;
  int commands_ = 0;
  std::optional<Player> player_;
  Scene last_;
  Renderer renderer_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  [[maybe_unused]] static const int installed =
      __sanitizer_install_malloc_and_free_hooks(onAllocation, onRelease);
  Bytes file(data, size);
  Bytes script(kFixedScript);
  const bool isMovie = size >= 3 && data[1] == 'W' && data[2] == 'S';
  if (!isMovie && size > 0) {
    const std::size_t length = std::min<std::size_t>(data[0], size - 1);
    script = file.subspan(1, length);
    file = file.subspan(1 + length);
  }
  try {
    std::shared_ptr<const platform::flash::Movie> movie;
    step("loading", [&] { movie = platform::flash::readMovie(file); });
    Host(script, std::move(movie)).run();
  } catch (const platform::flash::MovieError&) {
    // No movie at all, and told so.
  }
  return 0;
}
