#pragma once

#include <QSize>
#include <QString>
#include <QTest>

namespace prova {

// Rows of a test: every size of window that schools have, and a large one, in every language. The
// columns are `lato`, a QSize, and `lingua`, a QString.
inline void ogniLatoInOgniLingua() {
  constexpr QSize kLati[] = {{800, 600},  {1024, 768},  {1280, 1024},
                             {1366, 768}, {1920, 1080}, {3840, 2160}};
  QTest::addColumn<QSize>("lato");
  QTest::addColumn<QString>("lingua");
  for (const QSize& lato : kLati) {
    for (const char* lingua : {"Italiano", "English", "Français", "Deutsch", "Español"}) {
      QTest::addRow("%dx%d, %s", lato.width(), lato.height(), lingua)
          << lato << QString::fromUtf8(lingua);
    }
  }
}

}  // namespace prova
