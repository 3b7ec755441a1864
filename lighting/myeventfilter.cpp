#include "lighting/myeventfilter.h"

bool MyEventFilter::nativeEventFilter(const QByteArray & /*eventType*/, void * /*message*/,
                                      long * /*result*/)
{
    return false;
}
