#include "ratio.h"

int main(int argc, char** argv) {
    return bench::Run(argc, argv);
}
