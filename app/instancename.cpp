#include "app/instancename.h"

#include <QCryptographicHash>

QString instanceName(const InstanceIdentity &identity, int options)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData("Lumikey", 3); // on purpose not the whole word
    const auto add = [&hash](const QString &text) {
        hash.addData(text.toUtf8());
    };
    add(identity.applicationName);
    add(identity.organizationName);
    add(identity.organizationDomain);
    if ((options & InstanceOptions::omitVersion) == 0) {
        add(identity.applicationVersion);
    }
    if ((options & InstanceOptions::omitPath) == 0) {
        add(identity.applicationFilePath.toLower());
    }
    if ((options & InstanceOptions::perUser) != 0) {
        add(identity.userName.value_or(identity.homeLocations.join(QString())));
    }
    return QString::fromLatin1(hash.result().toBase64().replace('/', '_'));
}
