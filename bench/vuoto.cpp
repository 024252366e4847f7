#include <QApplication>
#include <QMainWindow>
#include <QPushButton>

// The measure of the start: an empty program of Qt's, one window with one button on the splash
// form's colours, maximised.
int main(int argc, char* argv[]) {
  QApplication program(argc, argv);
  QMainWindow window;
  auto* ground = new QWidget;
  QPalette palette = ground->palette();
  QLinearGradient gradient(0, 0, 0, 700);
  gradient.setColorAt(0, Qt::white);
  gradient.setColorAt(1, Qt::yellow);
  palette.setBrush(QPalette::Window, gradient);
  ground->setPalette(palette);
  ground->setAutoFillBackground(true);
  auto* button = new QPushButton(QStringLiteral("Avvio"), ground);
  button->setGeometry(480, 560, 390, 140);
  window.setCentralWidget(ground);
  window.showMaximized();
  return QApplication::exec();
}
