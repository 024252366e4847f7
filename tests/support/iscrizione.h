#pragma once

#include <QCoreApplication>
#include <QTest>
#include <source_location>
#include <string_view>

namespace prova {

// The test classes of a program, which are those of one folder. It runs one of them, which its
// first argument names by its file: "livelli" for cases/livelli_test.cpp. The arguments after it
// are Qt Test's.
class Iscritta {
 public:
  // Runs the class; the process's exit status, as QTest::qExec gives it.
  using Corsa = int (*)(int argc, char** argv);

  Iscritta(const Iscritta&) = delete;
  Iscritta& operator=(const Iscritta&) = delete;

  // The class of that name; nullptr where none has it.
  [[nodiscard]] static const Iscritta* Di(std::string_view nome);
  // The names of all, a line each.
  static void ElencaTutte();

  [[nodiscard]] int Corri(int argc, char** argv) const { return corsa(argc, argv); }

 protected:
  Iscritta(Corsa quale, const std::source_location& dove);
  ~Iscritta() = default;

 private:
  [[nodiscard]] std::string_view Nome() const;

  Corsa corsa;
  std::string_view file;
  const Iscritta* seguente;
};

// In the place of an application, for a test that needs none.
struct SenzaApplicazione {
  SenzaApplicazione(int& /*argc*/, char** /*argv*/) {}
};

// Enters a test class in its program: a constant at the end of the class's file. Says the
// application that the class runs in: QApplication, QCoreApplication, or none.
//
//   const prova::Iscrizione<ButtonTest, QApplication> kIscritta;
template <class Test, class Applicazione = SenzaApplicazione>
class Iscrizione : Iscritta {
 public:
  explicit Iscrizione(const std::source_location& dove = std::source_location::current())
      : Iscritta(Prova, dove) {}

 private:
  static int Prova(int argc, char** argv) {
    const Applicazione applicazione(argc, argv);
    // A screen's own resolution would change sizes.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
  }
};

}  // namespace prova
