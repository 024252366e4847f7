#include "platform/flash/movie_reader.h"

#include <algorithm>
#include <utility>

#include "platform/flash/definitions.h"
#include "platform/flash/limits.h"
#include "platform/flash/shape_reader.h"
#include "platform/flash/structures.h"
#include "platform/flash/unpacked_file.h"

namespace platform::flash {

namespace {

struct Tag {
  TagCode code;
  Bytes body;
  std::size_t bodyAt;  // from the start of the reader's bytes
};

// The next tag. Its body ends with the bytes if the announced length goes beyond them; what can be
// made of it is up to the reader of the tag.
Tag nextTag(ByteReader& bytes) {
  constexpr unsigned kLongLength = 0x3F;
  const unsigned head = bytes.u16();
  std::size_t length = head & kLongLength;
  if (length == kLongLength) {
    length = bytes.u32();
  }
  const std::size_t at = bytes.position();
  return {TagCode(head >> 6U), bytes.bytes(std::min(length, bytes.remaining())), at};
}

// Collects the commands of one timeline, the root's or a sprite's.
class TimelineReader {
 public:
  TimelineReader(const ReadContext& context, int announcedFrames)
      : context_(context), announced_(announcedFrames) {}

  // False when the tag does not belong to a timeline.
  bool take(TagCode code, ByteReader body);
  [[nodiscard]] Timeline finish();
  // The deepest nesting among what the timeline places.
  [[nodiscard]] int nesting() const { return nesting_; }

 private:
  void place(PlaceCommand command);
  template <typename Kind>
  void add(Kind command) {
    context_.allowance.spend(sizeof(Command));
    frame_.commands.emplace_back(std::in_place_type<Kind>, std::move(command));
  }
  void endFrame() {
    context_.allowance.spend(sizeof(Frame));
    timeline_.frames.push_back(std::exchange(frame_, {}));
  }

  const ReadContext& context_;
  int announced_;
  int nesting_ = 0;
  Timeline timeline_;
  Frame frame_;
};

void TimelineReader::place(PlaceCommand command) {
  if (command.mode != PlaceCommand::Mode::Move) {
    const Character* character = context_.movie.character(command.character);
    if (character == nullptr) {
      throw MovieError("something is placed that was not defined before", 0);
    }
    if (character->nesting >= limits::kNesting) {
      throw MovieError("sprites lie too deep in one another", 0);
    }
    nesting_ = std::max(nesting_, character->nesting);
  }
  add(std::move(command));
}

bool TimelineReader::take(TagCode code, ByteReader body) {
  switch (code) {
    case TagCode::ShowFrame:
      endFrame();
      return true;
    case TagCode::PlaceObject:
      place(readPlaceObject(body));
      return true;
    case TagCode::PlaceObject2:
    case TagCode::PlaceObject3:
      place(readPlaceObject2(body, code == TagCode::PlaceObject3, context_));
      return true;
    case TagCode::RemoveObject:
      body.skip(2);
      add(RemoveCommand{body.u16()});
      return true;
    case TagCode::RemoveObject2:
      add(RemoveCommand{body.u16()});
      return true;
    case TagCode::DoAction:
      add(DoActionCommand{body.rest()});
      return true;
    case TagCode::DoInitAction: {
      const CharacterId sprite = body.u16();
      add(InitActionCommand{sprite, body.rest()});
      return true;
    }
    case TagCode::FrameLabel: {
      const QString label = context_.movie.folded(context_.movie.decoded(body.string()));
      context_.allowance.spend(2 * static_cast<std::size_t>(label.size()) + sizeof(QString));
      if (!timeline_.labels.contains(label)) {
        timeline_.labels.insert(label, timeline_.frameCount());
      }
      return true;
    }
    default:
      return false;
  }
}

Timeline TimelineReader::finish() {
  // A file that breaks off inside a frame shows what there is of it.
  const bool brokenOff = !frame_.commands.empty() && timeline_.frameCount() < announced_;
  if (brokenOff || timeline_.frames.empty()) {
    timeline_.frames.push_back(std::move(frame_));
  }
  return std::move(timeline_);
}

class MovieReader {
 public:
  MovieReader(Movie& movie, Allowance& allowance)
      : movie_(movie), allowance_(allowance), context_{movie, allowance} {}

  void read(std::size_t tagsBegin);

 private:
  // Calls take(tag) for each tag up to the end; a fault of one tag leaves out that tag.
  template <typename Take>
  void eachTag(Bytes bytes, std::size_t bytesAt, Take take);
  void define(TagCode code, ByteReader body, std::size_t bodyAt);
  void defineShape(TagCode code, ByteReader& body);
  void defineFont(TagCode code, ByteReader& body);
  void defineButton(TagCode code, ByteReader& body);
  void colorButton(ByteReader& body);
  void setBackground(QRgb color);
  void defineSprite(ByteReader& body, std::size_t bodyAt);
  void add(CharacterId id, Character&& character);
  void note(const MovieError& fault) {
    if (movie_.faults.size() < std::size_t(limits::kFaults)) {
      movie_.faults.push_back(fault);
    }
  }

  Movie& movie_;
  bool backgroundSet_ = false;
  Allowance& allowance_;
  ReadContext context_;
};

template <typename Take>
void MovieReader::eachTag(Bytes bytes, std::size_t bytesAt, Take take) {
  constexpr std::int64_t kTagWork = 30;
  constexpr std::int64_t kFaultWork = 5000;
  ByteReader reader(bytes);
  try {
    while (!reader.atEnd() && !allowance_.isSpent()) {
      const Tag tag = nextTag(reader);
      allowance_.work(kTagWork + static_cast<std::int64_t>(tag.body.size()));
      if (tag.code == TagCode::End) {
        return;
      }
      try {
        take(tag);
      } catch (const MovieError& fault) {
        note(fault.inTag(static_cast<int>(tag.code), bytesAt + tag.bodyAt));
        allowance_.work(kFaultWork);
      }
    }
  } catch (const MovieError& fault) {
    note(fault.inTag(-1, bytesAt));
  }
}

void MovieReader::add(CharacterId id, Character&& character) {
  allowance_.spend(sizeof(Character));
  // The first one stays: what was placed by this number so far keeps its meaning.
  movie_.characters.try_emplace(id, std::move(character));
}

void MovieReader::defineSprite(ByteReader& body, std::size_t bodyAt) {
  const CharacterId id = body.u16();
  const int announced = body.u16();
  const std::size_t tagsAt = bodyAt + body.position();
  TimelineReader timeline(context_, announced);
  eachTag(body.rest(), tagsAt,
          [&](const Tag& tag) { timeline.take(tag.code, ByteReader(tag.body)); });
  const int nesting = timeline.nesting() + 1;
  add(id, {Sprite{timeline.finish()}, nesting});
}

void MovieReader::defineFont(TagCode code, ByteReader& body) {
  constexpr double kEm = 1024;
  constexpr double kFineEm = kEm * 20;
  const CharacterId id = body.u16();
  add(id, {code == TagCode::DefineFont
               ? readFont(body, allowance_)
               : readFont2(body, code == TagCode::DefineFont3 ? kFineEm : kEm, allowance_)});
}

void MovieReader::defineShape(TagCode code, ByteReader& body) {
  const ShapeVersion version = code == TagCode::DefineShape    ? ShapeVersion::One
                               : code == TagCode::DefineShape2 ? ShapeVersion::Two
                               : code == TagCode::DefineShape3 ? ShapeVersion::Three
                                                               : ShapeVersion::Four;
  const CharacterId id = body.u16();
  // The bounds may be wrong; those of the edges are not.
  (void)readRect(body);
  if (version == ShapeVersion::Four) {
    (void)readRect(body);
    body.skip(1);
  }
  add(id, {readShape(body, version, allowance_)});
}

void MovieReader::defineButton(TagCode code, ByteReader& body) {
  const CharacterId id = body.u16();
  Button button =
      code == TagCode::DefineButton2 ? readButton2(body, context_) : readButton(body, context_);
  int nesting = 0;
  for (const ButtonRecord& record : button.records) {
    nesting = std::max(nesting, movie_.character(record.character)->nesting);
  }
  add(id, {std::move(button), nesting + 1});
}

void MovieReader::colorButton(ByteReader& body) {
  const auto found = movie_.characters.find(body.u16());
  const ColorTransform color = readColorTransform(body, false);
  Button* button =
      found == movie_.characters.end() ? nullptr : std::get_if<Button>(&found->second.content);
  if (button != nullptr) {
    constexpr std::int64_t kRecordWork = 10;
    allowance_.work(kRecordWork, button->records.size());
    for (ButtonRecord& record : button->records) {
      record.color = color;
    }
  }
}

// The first one holds from the first frame on, wherever it stands; those after it mean nothing.
void MovieReader::setBackground(QRgb color) {
  if (!backgroundSet_) {
    movie_.background = color;
    backgroundSet_ = true;
  }
}

void MovieReader::define(TagCode code, ByteReader body, std::size_t bodyAt) {
  switch (code) {
    case TagCode::SetBackgroundColor:
      setBackground(readColor(body, false));
      break;
    case TagCode::DefineShape:
    case TagCode::DefineShape2:
    case TagCode::DefineShape3:
    case TagCode::DefineShape4:
      defineShape(code, body);
      break;
    case TagCode::DefineFont:
    case TagCode::DefineFont2:
    case TagCode::DefineFont3:
      defineFont(code, body);
      break;
    case TagCode::DefineText:
    case TagCode::DefineText2: {
      const CharacterId id = body.u16();
      add(id, {readText(body, code == TagCode::DefineText2, context_)});
      break;
    }
    case TagCode::DefineButton:
    case TagCode::DefineButton2:
      defineButton(code, body);
      break;
    case TagCode::DefineButtonCxform:
      colorButton(body);
      break;
    case TagCode::DefineSprite:
      defineSprite(body, bodyAt);
      break;
    default:
      break;
  }
}

void MovieReader::read(std::size_t tagsBegin) {
  TimelineReader timeline(context_, movie_.announcedFrames);
  eachTag(Bytes(movie_.bytes).subspan(tagsBegin), tagsBegin, [&](const Tag& tag) {
    if (!timeline.take(tag.code, ByteReader(tag.body))) {
      define(tag.code, ByteReader(tag.body), tagsBegin + tag.bodyAt);
    }
  });
  movie_.timeline = timeline.finish();
}

}  // namespace

std::shared_ptr<const Movie> readMovie(Bytes file, Budget::Clock clock) {
  Budget budget(std::move(clock));
  budget.begin(limits::kLoading);
  Allowance allowance(budget);
  UnpackedFile opened = unpackFile(file, allowance);
  auto movie = std::make_shared<Movie>();
  movie->version = opened.version;
  movie->compressed = opened.compressed;
  movie->stage = opened.stage;
  movie->frameRate = opened.frameRate;
  movie->announcedFrames = opened.frameCount;
  movie->bytes = std::move(opened.bytes);
  MovieReader(*movie, allowance).read(opened.tagsBegin);
  movie->cutOff = budget.isSpent();
  return movie;
}

}  // namespace platform::flash
