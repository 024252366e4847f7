#pragma once

#include <QApplication>
#include <QPalette>

namespace prova {

// Colours that a desktop gives its programs, for all controls and for some of their own, as long as
// it lives: words light on dark, or, in high contrast, yellow on black.
class TavolozzaDelDesktop {
 public:
  TavolozzaDelDesktop(QColor fondo, QColor scritto) : prima_(QApplication::palette()) {
    QPalette scura(fondo);
    for (int ruolo = 0; ruolo < QPalette::NColorRoles; ++ruolo) {
      scura.setColor(static_cast<QPalette::ColorRole>(ruolo), fondo);
    }
    for (const auto ruolo : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                             QPalette::ToolTipText, QPalette::BrightText, QPalette::Light,
                             QPalette::Highlight, QPalette::Link, QPalette::PlaceholderText}) {
      scura.setColor(ruolo, scritto);
    }
    QApplication::setPalette(scura);
    for (const char* classe : kDiClasse) QApplication::setPalette(scura, classe);
  }
  ~TavolozzaDelDesktop() { QApplication::setPalette(prima_); }
  TavolozzaDelDesktop(const TavolozzaDelDesktop&) = delete;
  TavolozzaDelDesktop& operator=(const TavolozzaDelDesktop&) = delete;

  // Those that desktops give colours of their own.
  static constexpr const char* kDiClasse[] = {
      "QMenu",       "QMenuBar",  "QTipLabel",         "QMessageBoxLabel", "QLabel",
      "QLineEdit",   "QComboBox", "QAbstractItemView", "QHeaderView",      "QAbstractButton",
      "QPushButton", "QCheckBox", "QRadioButton",      "QGroupBox",        "QTextEdit",
      "QScrollBar",  "QDialog"};

 private:
  QPalette prima_;
};

}  // namespace prova
