#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <vector>

#include "platform/forms/design.h"

// Designs as tables that a person can read, one line a control: what the tests hold a form's design
// against. tests/app/disegni has a file for each form; the first line of each tells the columns.
namespace prova {

// What a control is at the start, by the names of the columns.
using Voci = QMap<QString, QString>;

struct DisegnoScritto {
  Voci forma;                     // width, height, ground, caption, ...
  std::vector<QString> ordine;    // of the controls, by name
  QMap<QString, Voci> controlli;  // by name, "PulsanteNumero(3)" in an array
};

// What a form's design says: of rows with one name and index the last, at the place of the first.
[[nodiscard]] DisegnoScritto Scritto(const platform::FormDesign& disegno);

// What a file says. Throws std::runtime_error with the line that cannot be read, or that names a
// control again.
[[nodiscard]] DisegnoScritto Letto(const QString& percorso);

// Where they differ, a line each: "PulsanteNumero(3), left: 3255, not 3256 as the table says".
[[nodiscard]] QStringList Differenze(const DisegnoScritto& vero, const DisegnoScritto& tabella);

}  // namespace prova
