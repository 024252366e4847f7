#include "scimmia/gesti.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QThread>
#include <array>

#include "platform/boards/board.h"
#include "platform/forms/controls/menu_item.h"
#include "platform/forms/page.h"
#include "support/scansione_di_prova.h"
#include "support/tocchi.h"

namespace prova {

using platform::Control;
using platform::Form;

namespace {

// Every kind of key that the program or Qt does something with, and some that nobody does.
constexpr auto kTasti = std::to_array<int>(
    {Qt::Key_0,      Qt::Key_1,         Qt::Key_2,      Qt::Key_3,        Qt::Key_4,
     Qt::Key_5,      Qt::Key_6,         Qt::Key_7,      Qt::Key_8,        Qt::Key_9,
     Qt::Key_Space,  Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Tab,      Qt::Key_Backtab,
     Qt::Key_Escape, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left,     Qt::Key_Right,
     Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Home,   Qt::Key_End,      Qt::Key_PageUp,
     Qt::Key_F1,     Qt::Key_F4,        Qt::Key_F10,    Qt::Key_Menu,     Qt::Key_Alt,
     Qt::Key_Shift,  Qt::Key_Control,   Qt::Key_A,      Qt::Key_C,        Qt::Key_D,
     Qt::Key_E,      Qt::Key_P,         Qt::Key_S,      Qt::Key_U,        Qt::Key_V,
     Qt::Key_X,      Qt::Key_Z,         Qt::Key_Minus,  Qt::Key_Plus,     Qt::Key_Comma,
     Qt::Key_Insert, Qt::Key_NumLock,   Qt::Key_Back,   Qt::Key_VolumeUp, Qt::Key_unknown});
// Those that the ways of answering live on.
constexpr auto kTastiFrequenti =
    std::to_array<int>({Qt::Key_Space, Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter, Qt::Key_Tab});

bool visibile(const Control& controllo) {
  return controllo.widget() != nullptr && controllo.widget()->isVisible();
}

// What a keyboard writes with a key; no control characters but those that it does write.
QString scritta(int tasto, Qt::KeyboardModifiers con) {
  if ((con & (Qt::AltModifier | Qt::ControlModifier)) != 0) return {};
  if (tasto == Qt::Key_Return || tasto == Qt::Key_Enter) return QStringLiteral("\r");
  if (tasto == Qt::Key_Tab) return QStringLiteral("\t");
  if (tasto == Qt::Key_Backspace) return QStringLiteral("\b");
  constexpr int kUltimo = 0x7e;
  return tasto >= Qt::Key_Space && tasto <= kUltimo ? QString(QChar(tasto)).toLower() : QString();
}

void batti(QTest::KeyAction come, QWindow* dove, int tasto, Qt::KeyboardModifiers con = {}) {
  QTest::sendKeyEvent(come, dove, Qt::Key(tasto), scritta(tasto, con), con);
}

QPoint mezzo(const QWidget& widget) {
  return widget.mapTo(widget.window(), widget.rect().center());
}

}  // namespace

bool Disturbi::spiega(const QString& riquadro) const {
  return (rete && riquadro.contains(QStringLiteral("'40006'"))) ||
         (stampante && riquadro.contains(QStringLiteral("'482'"))) ||
         (rapporto && riquadro.contains(QStringLiteral("'5'"))) ||
         (lato && riquadro.contains(QStringLiteral("'6'")));
}

bool Gesti::chiuso() const {
  return banco_.ambiente->fondo.gate().isClosed();
}

Form* Gesti::inUso() const {
  platform::Forms& forme = banco_.ambiente->fondo.forms();
  if (const QWidget* sopra = QApplication::activeModalWidget()) {
    Form* forma = forme.shownIn(*sopra->windowHandle());
    if (forma != nullptr) return forma;
  }
  return forme.current();
}

// Whether the main window takes input at all.
bool Gesti::libera() const {
  return QApplication::activeModalWidget() == nullptr && !banco_.ambiente->fondo.isDeaf();
}

// Where an event goes: mostly to what lies on top, as the desktop does it.
QWindow* Gesti::finestra() {
  if (!dadi_.unoSu(12)) {
    if (const QWidget* menu = QApplication::activePopupWidget()) return menu->windowHandle();
    if (const QWidget* sopra = QApplication::activeModalWidget()) return sopra->windowHandle();
  }
  return banco_.finestra();
}

void Gesti::uno(int profondita) {
  if (chiuso() || inUso() == nullptr) return;
  gira(profondita);
  QCoreApplication::processEvents();
}

void Gesti::daFuori(int profondita) {
  if (chiuso()) return;
  const int come = dadi_.fino(9);
  if (come == 0) {
    chiacchiera(profondita);
  } else if (come < 5) {
    rete(profondita);
  } else {
    orologio(profondita);
  }
}

void Gesti::gira(int profondita) {
  struct Voce {
    int peso;
    void (Gesti::*gesto)(int);
  };
  static constexpr auto kVoci = std::to_array<Voce>({
      {20, &Gesti::tasto},
      {6, &Gesti::tieni},
      {12, &Gesti::rispondi},
      {12, &Gesti::mouse},
      {20, &Gesti::controllo},
      {4, &Gesti::menu},
      {4, &Gesti::accessibile},
      {10, &Gesti::rete},
      {2, &Gesti::chiacchiera},
      {14, &Gesti::orologio},
      {3, &Gesti::lato},
      {3, &Gesti::perdiIlFuoco},
      {1, &Gesti::lingua},
      {2, &Gesti::stampanti},
  });
  static constexpr int kSomma = [] {
    int somma = 0;
    for (const Voce& voce : kVoci) somma += voce.peso;
    return somma;
  }();
  constexpr int kVolteSenzaChiudere = 1500;
  if (dadi_.unoSu(kVolteSenzaChiudere)) {
    chiudi(profondita);
    return;
  }
  int tiro = dadi_.fino(kSomma);
  for (const Voce& voce : kVoci) {
    tiro -= voce.peso;
    if (tiro >= 0) continue;
    (this->*voce.gesto)(profondita);
    break;
  }
}

void Gesti::chiudiQuelloSopra() {
  if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  if (QWidget* sopra = QApplication::activeModalWidget()) sopra->close();
  if (QThread::currentThread()->loopLevel() == 0) return;
  // Qt's own loops: a menu that waits for its item, a text that is being dragged.
  batti(QTest::Click, banco_.finestra(), Qt::Key_Escape);
  premi(QEvent::MouseButtonRelease, banco_.finestra(), {}, Qt::LeftButton);
}

void Gesti::lasciaTutto() {
  if (chiuso() || inUso() == nullptr) return;
  for (const Qt::MouseButton bottone : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    premi(QEvent::MouseButtonRelease, banco_.finestra(), {}, bottone);
  }
}

void Gesti::torna() {
  altra_.hide();
  banco_.ambiente->fondo.window().activateWindow();
  QCoreApplication::processEvents();
}

void Gesti::tasto(int profondita) {
  const int quale = dadi_.unoSu(2) ? dadi_.uno(kTastiFrequenti) : dadi_.uno(kTasti);
  Qt::KeyboardModifiers con;
  if (dadi_.unoSu(8)) {
    con = dadi_.uno(std::array<Qt::KeyboardModifier, 4>{Qt::AltModifier, Qt::ControlModifier,
                                                        Qt::ShiftModifier, Qt::KeypadModifier});
  }
  if (con == Qt::ControlModifier && quale == Qt::Key_V) {
    QApplication::clipboard()->setText(dadi_.unoSu(2) ? QStringLiteral("12a 3\n4567890123456789")
                                                      : QString::number(dadi_.fino(99999)));
  }
  const int come = dadi_.fino(10);
  QWindow* dove = finestra();
  racconto_.annota(profondita, QStringLiteral("key 0x%1 modifiers 0x%2 how %3")
                                   .arg(quale, 0, 16)
                                   .arg(int(con), 0, 16)
                                   .arg(come));
  constexpr int kSoloPremi = 7;
  constexpr int kSoloLascia = 8;
  constexpr int kRipeti = 9;
  QPointer<QWindow> viva(dove);
  if (come != kSoloLascia) {
    if (come == kRipeti) {
      qt_handleKeyEvent(dove, QEvent::KeyPress, quale, con, QString(), true);
    } else {
      batti(QTest::Press, dove, quale, con);
    }
  }
  if (come != kSoloPremi && come != kRipeti && viva) batti(QTest::Release, viva, quale, con);
}

// A key held for a while, with or without its repeats, as a hand that does not come off.
void Gesti::tieni(int profondita) {
  const int quale = dadi_.uno(kTastiFrequenti);
  racconto_.annota(profondita, QStringLiteral("hold 0x%1").arg(quale, 0, 16));
  QPointer<QWindow> dove(finestra());
  batti(QTest::Press, dove, quale);
  const int volte = dadi_.fino(4);
  for (int i = 0; i < volte && dove; ++i) {
    banco_.tempo.advance(dadi_.unoSu(2) ? 0.03 : 0.6);
    if (dove) qt_handleKeyEvent(dove, QEvent::KeyPress, quale, {}, QString(), true);
  }
  if (dove) batti(QTest::Release, dove, quale);
}

// A number and its confirmation where the sheet with digits has them, whatever sheet or form is
// there.
void Gesti::toccaCifre(const QString& cifre) {
  const somme::Tastiera& tastiera = somme::kTastieraCifre;
  for (const QChar cifra : cifre) {
    tocca(banco_, tastiera, tastiera.PostoDi(somme::TastoCifra(cifra.digitValue())));
  }
  tocca(banco_, tastiera, tastiera.PostoDi(somme::Tasto::Conferma));
}

// A whole answer, often the right one, in the way that the form takes it.
void Gesti::rispondi(int profondita) {
  const somme::StatoCondiviso& stato = banco_.ambiente->stato;
  const auto quali = std::to_array<int>({stato.Totale, stato.Totale, stato.Addendo1, stato.Addendo2,
                                         stato.RisultatoTabella, dadi_.fino(20000)});
  const int numero = dadi_.uno(quali);
  const QString cifre = QString::number(numero);
  racconto_.annota(profondita, QStringLiteral("answer ") + cifre);
  if (stato.ModalitaInput == somme::kHelpiKeys && dadi_.unoSu(2)) {
    toccaCifre(cifre);
    return;
  }
  const Form* forma = inUso();
  for (const Control* controllo : forma->controls()) {
    const auto* tastiera = dynamic_cast<const somme::TastieraScansione*>(controllo);
    if (tastiera == nullptr || !visibile(*tastiera) || profondita > 0) continue;
    const auto viva = forma->weak_from_this();
    const bool aMano = stato.ModalitaInput == somme::kScansioneManuale;
    for (const QChar cifra : cifre + u':') {
      const int tasto = cifra == u':' ? 12 : cifra.digitValue();
      if (viva.expired() || forma->isUnloaded()) return;
      (void)(aMano ? scegliAMano(banco_, *tastiera, tasto)
                   : scegliAspettando(banco_, *tastiera, tasto));
    }
    return;
  }
  QPointer<QWindow> dove(finestra());
  for (const QChar cifra : cifre) {
    if (dove) batti(QTest::Click, dove, cifra.unicode());
  }
  if (dove) batti(QTest::Click, dove, Qt::Key_Return);
}

void Gesti::premi(QMouseEvent::Type tipo, QWindow* dove, QPoint punto, Qt::MouseButton bottone) {
  if (!QRect(QPoint(), dove->size()).contains(punto)) return;
  switch (tipo) {
    case QEvent::MouseButtonPress:
      QTest::mousePress(dove, bottone, {}, punto);
      break;
    case QEvent::MouseButtonRelease:
      QTest::mouseRelease(dove, bottone, {}, punto);
      break;
    case QEvent::MouseMove:
      QTest::mouseMove(dove, punto);
      break;
    case QEvent::MouseButtonDblClick:
      QTest::mouseDClick(dove, bottone, {}, punto);
      break;
    default:
      QTest::mouseClick(dove, bottone, {}, punto);
      break;
  }
}

void Gesti::mouse(int profondita) {
  QWindow* dove = finestra();
  const QPoint punto(dadi_.fino(dove->width()), dadi_.fino(dove->height()));
  const auto tipo = dadi_.uno(std::to_array<QEvent::Type>(
      {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseMove,
       QEvent::MouseButtonDblClick, QEvent::None, QEvent::None, QEvent::None}));
  const auto bottone = dadi_.uno(std::to_array<Qt::MouseButton>(
      {Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}));
  racconto_.annota(profondita, QStringLiteral("mouse %1 button %2 at %3,%4")
                                   .arg(int(tipo))
                                   .arg(int(bottone))
                                   .arg(punto.x())
                                   .arg(punto.y()));
  premi(tipo, dove, punto, bottone);
}

// Something that can be seen is aimed at; on a board any place of it.
void Gesti::controllo(int profondita) {
  const Form* forma = inUso();
  std::vector<const Control*> visibili;
  for (const Control* c : forma->controls()) {
    if (visibile(*c)) visibili.push_back(c);
  }
  if (visibili.empty()) return;
  const Control& scelto = *dadi_.uno(visibili);
  const QWidget& widget = *scelto.widget();
  QPoint punto = mezzo(widget);
  if (dynamic_cast<const platform::Board*>(&scelto) != nullptr && !widget.rect().isEmpty()) {
    punto = widget.mapTo(widget.window(),
                         QPoint(dadi_.fino(widget.width()), dadi_.fino(widget.height())));
  }
  const auto tipo = dadi_.unoSu(8) ? QEvent::MouseButtonDblClick : QEvent::None;
  racconto_.annota(profondita, QStringLiteral("click %1 of %2 at %3,%4 kind %5")
                                   .arg(scelto.name(), forma->name())
                                   .arg(punto.x())
                                   .arg(punto.y())
                                   .arg(int(tipo)));
  premi(tipo, widget.window()->windowHandle(), punto, Qt::LeftButton);
}

void Gesti::menu(int profondita) {
  std::vector<QAction*> voci;
  for (const Control* c : inUso()->controls()) {
    const auto* voce = dynamic_cast<const platform::MenuItem*>(c);
    if (voce == nullptr || voce->action() == nullptr) continue;
    if (voce->action()->isVisible() && voce->action()->isEnabled()) {
      voci.push_back(voce->action());
    }
  }
  if (voci.empty() || !libera()) return;
  QAction* voce = dadi_.uno(voci);
  racconto_.annota(profondita, QStringLiteral("menu ") + voce->objectName());
  voce->trigger();
}

// Assistive technology presses something, also while the program waits for a printer.
void Gesti::accessibile(int profondita) {
  std::vector<const Control*> tutti;
  for (const Control* c : inUso()->controls()) {
    if (visibile(*c)) tutti.push_back(c);
  }
  if (tutti.empty()) return;
  const Control& scelto = *dadi_.uno(tutti);
  QAccessibleInterface* nodo = QAccessible::queryAccessibleInterface(scelto.widget());
  QAccessibleActionInterface* azioni = nodo == nullptr ? nullptr : nodo->actionInterface();
  if (azioni == nullptr || azioni->actionNames().isEmpty()) return;
  const QString azione = dadi_.uno(azioni->actionNames());
  racconto_.annota(profondita, QStringLiteral("assistive %1 on %2").arg(azione, scelto.name()));
  azioni->doAction(azione);
}

}  // namespace prova
