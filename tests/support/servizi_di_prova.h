#pragma once

#include <QString>
#include <QStringList>
#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "platform/base/chance.h"
#include "platform/base/message_boxes.h"
#include "platform/base/services.h"

namespace platform::inline forms {
class Pictures;
}

// The services of the program as a test hands them in: chance is scripted, everything else is
// recorded.
namespace prova {

// Thrown when a script has no more draws to give.
struct SorteEsaurita : std::runtime_error {
  SorteEsaurita() : std::runtime_error("the scripted source of chance is used up") {}
};

// Gives the draws that a test wrote down, as "number k of n": `Casuale(n)` then gives k. Without a
// script it draws from a seed.
class SorteDiProva final : public platform::Chance {
 public:
  [[nodiscard]] float fraction() override;
  void seed(std::uint64_t seed) override { semi.push_back(seed); }

  // From here on the given draws come, each so that `Casuale(n)` is k.
  struct Estrazione {
    int k;
    int n;
  };
  void scrivi(const std::vector<Estrazione>& estrazioni);
  [[nodiscard]] std::size_t rimaste() const { return coda_.size(); }
  // After the script: draws from a seed (the start), or SorteEsaurita.
  void finisci() { finita_ = true; }

  // Where there is no script: draws from this seed on.
  void riparti(std::uint64_t seme) { libera_.seed(seme); }

  std::vector<std::uint64_t> semi;
  std::function<void()> alTiro;  // before each draw; it may throw

 private:
  std::deque<float> coda_;
  bool finita_ = false;
  platform::SeededChance libera_{1};
};

class SuonoDiProva final : public platform::Sound {
 public:
  void play(const QString& path) override { suonati.push_back(path); }
  QStringList suonati;
};

class MessaggiDiProva final : public platform::MessageBoxes {
 public:
  platform::BoxAnswer show(const platform::MessageBox& box) override;
  // The answer to the next box that asks for one; a box without an answer fails the test.
  void rispondi(platform::BoxAnswer risposta) { risposte.push_back(risposta); }

  std::vector<platform::MessageBox> mostrati;
  std::deque<platform::BoxAnswer> risposte;
  std::function<void()> mentreAperto;  // what happens while a box stands open
};

// Hears what a screen reader is told.
class AnnunciDiProva final : public platform::Announcer {
 public:
  void announce(const QString& sentence) override {
    detti.push_back(sentence);
    if (allAnnuncio) allAnnuncio();
  }
  void boxOpens() override { ++davanti; }
  void boxCloses() override { --davanti; }
  // What was told since the last question for it.
  [[nodiscard]] QStringList nuovi() { return std::exchange(detti, {}); }

  QStringList detti;
  int davanti = 0;  // boxes that stand in front now
  std::function<void()> allAnnuncio;
};

// The program's drawings, the same in the whole test: read and drawn for one form, they are there
// for the next.
platform::Pictures& disegni();

// Pictures stand still, as most tests want them, until a test lets them move.
class MotoDiProva final : public platform::Motion {
 public:
  [[nodiscard]] bool isWanted() override { return voluto; }
  bool voluto = false;
};

class DocumentiDiProva final : public platform::Documents {
 public:
  void open(const QString& path) override { aperti.push_back(path); }
  QStringList aperti;
};

class FineDiProva final : public platform::ProcessEnd {
 public:
  void end(int status) override {
    if (!stato) stato = status;
  }
  std::optional<int> stato;
};

class IstanzaDiProva final : public platform::InstanceLock {
 public:
  [[nodiscard]] bool take() override { return libera; }
  bool libera = true;
};

}  // namespace prova
