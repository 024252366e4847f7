#pragma once

#include <cstdlib>

#include "app/shared/ambiente.h"

// Services that do nothing: what is measured is the program, not the machine around it.
namespace bench {

struct Muto final : platform::Sound {
  void play(const QString& /*path*/) override {}
};
struct Tacito final : platform::Announcer {
  void announce(const QString& /*sentence*/) override {}
  void boxOpens() override {}
  void boxCloses() override {}
};
struct Chiuso final : platform::Documents {
  void open(const QString& /*path*/) override {}
};
struct Uscita final : platform::ProcessEnd {
  void end(int status) override { std::exit(status); }
};
struct Solo final : platform::InstanceLock {
  [[nodiscard]] bool take() override { return true; }
};
struct SenzaStampanti final : platform::Printers {
  [[nodiscard]] List list() override { return {}; }
  [[nodiscard]] Opened open(const QString& /*name*/) override { return {}; }
  [[nodiscard]] platform::PrintResult print(const platform::PrintJob& /*job*/) override {
    return {};
  }
};
struct SenzaPagina final : platform::PageSetup {
  [[nodiscard]] bool choose(const QString& /*printer*/, const platform::PrinterTraits& /*traits*/,
                            platform::PrinterSettings& /*settings*/) override {
    return false;
  }
};
// Takes every connection and never says anything.
struct Sorda final : platform::Connection {
  void open(quint16 /*port*/) override {}
  [[nodiscard]] bool isOpening() const override { return false; }
  [[nodiscard]] bool isOpen() const override { return true; }
  void send(const QByteArray& /*bytes*/) override {}
  [[nodiscard]] QByteArray take() override { return {}; }
  void close() override {}
};
struct ReteSorda final : platform::Network {
  [[nodiscard]] std::unique_ptr<platform::Connection> makeConnection(
      std::function<void()> /*arrived*/) override {
    return std::make_unique<Sorda>();
  }
};
struct Zitto final : platform::MessageBoxes {
  platform::BoxAnswer show(const platform::MessageBox& /*box*/) override {
    return platform::BoxAnswer::Ok;
  }
};

}  // namespace bench
