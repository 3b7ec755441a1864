#include "app/singleapplication.h"

#include "app/singleapplicationprivate.h"
#include "system/platform.h"

SingleApplication::SingleApplication(int &argc, char **argv, bool allowSecondary, int options,
                                     int timeoutMs, Platform &platform)
    : QApplication(argc, argv)
    , d(std::make_unique<SingleApplicationPrivate>(*this, platform, options))
{
    if (!d->start(allowSecondary, timeoutMs)) {
        d.reset();
        platform.endProcess(0);
    }
}

SingleApplication::~SingleApplication() = default;

void SingleApplication::handOver()
{
    d->handOver();
}

void SingleApplication::takeBack()
{
    d->takeBack();
}
