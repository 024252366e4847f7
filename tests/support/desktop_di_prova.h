#pragma once

#include <QAccessible>
#include <QString>
#include <functional>
#include <vector>

namespace prova {

// What the desktop has been told.
struct Udito {
  QAccessible::Event evento;
  QString nome;  // of what it is about
  QObject* oggetto;
  // What the toolkit makes of it on the bus of a Linux desktop; the focus in older words, which
  // every screen reader drops, is not counted.
  int messaggi;
};

// A desktop on which assistive technology listens, as long as it lives; one at a time. The toolkit
// tells nothing where nobody listens, as on the displays of tests.
class DesktopDiProva {
 public:
  DesktopDiProva();
  ~DesktopDiProva();
  DesktopDiProva(const DesktopDiProva&) = delete;
  DesktopDiProva& operator=(const DesktopDiProva&) = delete;

  // Whether somebody listens; at the start, yes.
  void ascolta(bool ascolta);
  // From here on who listens is called at each event, and asks in the middle of it, as the
  // toolkit's bridge does; then nothing is kept for `nuovi`.
  void chiama(std::function<void(const QAccessibleEvent& evento)> orecchio);
  // What it has been told since the last call.
  std::vector<Udito> nuovi();
};

[[nodiscard]] int Messaggi(const std::vector<Udito>& uditi);
// In one line, for what a test says where it fails.
[[nodiscard]] QString InUnaRiga(const std::vector<Udito>& uditi);

}  // namespace prova
