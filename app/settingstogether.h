#pragma once

#include "app/settingskeys.h"

#include <QPair>
#include <QString>
#include <QVariant>
#include <QVector>

/// Keys of the settings file with their new values, for AppSettings::write() to store in one write:
/// nobody ever sees some of them without the others, also not after a kill.
class SettingsTogether
{
public:
    /// Adds one behind those that are there. @p value is of the key's very type: no other compiles.
    template<class Value> SettingsTogether &with(const Key<Value> &key, const Value &value)
    {
        append(key, value);
        return *this;
    }

    /// The same, without a look at the type.
    void append(const SettingKey &key, const QVariant &value);

    /// Full names and values in their stored forms, in the order in which they were added.
    const QVector<QPair<QString, QVariant>> &stored() const { return values; }

private:
    QVector<QPair<QString, QVariant>> values;
};
