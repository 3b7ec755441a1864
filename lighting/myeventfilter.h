#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

/// Tells when the machine has resumed from sleep and the keyboard controller has had time to
/// settle. Resume notices are not watched yet; every message passes.
class MyEventFilter : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    bool nativeEventFilter(const QByteArray &eventType, void *message, long *result) override;

signals:
    void emitawake();
};
