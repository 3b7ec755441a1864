#include "app/settingstogether.h"

#include "app/appsettings.h"

void SettingsTogether::append(const SettingKey &key, const QVariant &value)
{
    values.append({settingsPath(key), inStoredForm(key, value)});
}
