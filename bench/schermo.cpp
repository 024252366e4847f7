#include "schermo.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>
#include <xcb/damage.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

extern char** environ;

namespace bench {

namespace {

constexpr double kLongest = 20000;  // milliseconds that a start may take

xcb_screen_t* screenOf(xcb_connection_t* display) {
  return xcb_setup_roots_iterator(xcb_get_setup(display)).data;
}

bool belongsTo(xcb_connection_t* display, xcb_window_t window, pid_t pid) {
  const auto name = xcb_intern_atom_reply(
      display, xcb_intern_atom(display, 0, strlen("_NET_WM_PID"), "_NET_WM_PID"), nullptr);
  const xcb_atom_t atom = name->atom;
  std::free(name);
  auto* reply = xcb_get_property_reply(
      display, xcb_get_property(display, 0, window, atom, XCB_ATOM_CARDINAL, 0, 1), nullptr);
  const bool same = reply != nullptr && xcb_get_property_value_length(reply) == 4 &&
                    *static_cast<std::uint32_t*>(xcb_get_property_value(reply)) ==
                        static_cast<std::uint32_t>(pid);
  std::free(reply);
  return same;
}

}  // namespace

double adesso() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1000 + static_cast<double>(now.tv_nsec) / 1e6;
}

void dormi(double secondi) {
  usleep(static_cast<useconds_t>(secondi * 1e6));
}

Programma::Programma(const std::string& percorso) : schermo_(xcb_connect(nullptr, nullptr)) {
  if (xcb_connection_has_error(schermo_) != 0) throw std::runtime_error("no display");
  std::free(
      xcb_damage_query_version_reply(schermo_, xcb_damage_query_version(schermo_, 1, 1), nullptr));
  const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(schermo_, screenOf(schermo_)->root, XCB_CW_EVENT_MASK, &events);
  xcb_flush(schermo_);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 2, "/dev/null", O_WRONLY, 0);
  char* arguments[] = {const_cast<char*>(percorso.c_str()), nullptr};
  partenza_ = adesso();
  if (posix_spawn(&pid_, percorso.c_str(), &files, nullptr, arguments, environ) != 0) {
    throw std::runtime_error("cannot start " + percorso);
  }
  posix_spawn_file_actions_destroy(&files);
}

Programma::~Programma() {
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
  xcb_disconnect(schermo_);
}

double Programma::attendiDipinto() {
  const std::uint8_t damaged =
      xcb_get_extension_data(schermo_, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
  while (adesso() - partenza_ < kLongest) {
    pollfd wait{xcb_get_file_descriptor(schermo_), POLLIN, 0};
    poll(&wait, 1, 100);
    while (xcb_generic_event_t* event = xcb_poll_for_event(schermo_)) {
      const double time = adesso();
      const std::uint8_t type = event->response_type & 0x7f;
      if (type == XCB_CREATE_NOTIFY) {
        const auto* made = reinterpret_cast<xcb_create_notify_event_t*>(event);
        xcb_damage_create(schermo_, xcb_generate_id(schermo_), made->window,
                          XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        xcb_flush(schermo_);
      } else if (type == damaged) {
        const auto* painted = reinterpret_cast<xcb_damage_notify_event_t*>(event);
        if (painted->area.width > 200 && belongsTo(schermo_, painted->drawable, pid_)) {
          std::free(event);
          return time - partenza_;
        }
      }
      std::free(event);
    }
  }
  throw std::runtime_error("no picture came");
}

void Programma::deveVivere() const {
  siginfo_t end{};
  // Left as it is found: the destructor waits for it.
  if (waitid(P_PID, static_cast<id_t>(pid_), &end, WEXITED | WNOHANG | WNOWAIT) != 0 ||
      end.si_pid != 0) {
    throw std::runtime_error("the program has ended, " +
                             std::string(end.si_code == CLD_EXITED ? "with " : "by signal ") +
                             std::to_string(end.si_status));
  }
}

long Programma::pss() const {
  deveVivere();
  std::ifstream file("/proc/" + std::to_string(pid_) + "/smaps_rollup");
  std::string word;
  while (file >> word) {
    if (word == "Pss:") {
      long kilobytes = 0;
      file >> kilobytes;
      return kilobytes;
    }
  }
  throw std::runtime_error("no figures of memory");
}

long Programma::risvegli() const {
  deveVivere();
  long sum = 0;
  for (const auto& thread :
       std::filesystem::directory_iterator("/proc/" + std::to_string(pid_) + "/task")) {
    std::ifstream file(thread.path() / "status");
    std::string word;
    while (file >> word) {
      if (word == "voluntary_ctxt_switches:") {
        long count = 0;
        file >> count;
        sum += count;
      }
    }
  }
  return sum;
}

void Programma::clicca(int x, int y) {
  const xcb_window_t root = screenOf(schermo_)->root;
  xcb_test_fake_input(schermo_, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root,
                      static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
  xcb_test_fake_input(schermo_, XCB_BUTTON_PRESS, 1, XCB_CURRENT_TIME, root, 0, 0, 0);
  xcb_test_fake_input(schermo_, XCB_BUTTON_RELEASE, 1, XCB_CURRENT_TIME, root, 0, 0, 0);
  xcb_flush(schermo_);
}

}  // namespace bench
