#include "app/singleapplication.h"

SingleApplication::SingleApplication(int &argc, char **argv, bool /*allowSecondary*/,
                                     int /*options*/, int /*timeoutMs*/)
    : QApplication(argc, argv)
{}
