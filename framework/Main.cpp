#include "DumpBrel.h"

int main(int argc, char** argv) {
    return android::dumpbrel::dumpbrelMain(argc, argv);
}
