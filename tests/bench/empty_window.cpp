// The floor under the program's start: a window with nothing in it, painted once.
#include "bench/first_paint.h"

int main(int argc, char** argv) {
    QApplication toolkit(argc, argv);
    QWidget window;
    window.resize(960, 640);
    const arbolith::bench::FirstPaint paint(arbolith::bench::TellMemoryAndLeave);
    window.show();
    return QApplication::exec();
}
