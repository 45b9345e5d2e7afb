#include <QApplication>

#include "ratio.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return bench::Run(argc, argv);
}
