// The least that a Qt program with a window and a text edit can be: what the start of ours is held against.
#include <QApplication>
#include <QMainWindow>
#include <QTextEdit>
#include <QTimer>

namespace {

class BareWindow : public QMainWindow {
 public:
  BareWindow() {
    setCentralWidget(new QTextEdit(this));
    resize(1200, 740);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QMainWindow::paintEvent(event);
    QTimer::singleShot(0, this, [] { QApplication::quit(); });
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  BareWindow window;
  window.show();
  return QApplication::exec();
}
