#pragma once

#include <QString>
#include <QTest>
#include <initializer_list>

namespace prova {

// Rows of a test whose columns are words, each called by its first one.
inline void righeDiParole(std::initializer_list<const char*> colonne,
                          std::initializer_list<std::initializer_list<const char*>> righe) {
  for (const char* colonna : colonne) QTest::addColumn<QString>(colonna);
  for (const auto& parole : righe) {
    QTestData& riga = QTest::newRow(*parole.begin());
    for (const char* parola : parole) riga << QString::fromUtf8(parola);
  }
}

}  // namespace prova
