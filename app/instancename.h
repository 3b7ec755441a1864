#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What tells the copies of one program and user from all others.
struct InstanceIdentity
{
    QString applicationName;
    QString organizationName;
    QString organizationDomain;
    QString applicationVersion;
    QString applicationFilePath; ///< compared without regard to case
    std::optional<QString> userName;
    QStringList homeLocations; ///< stand in for a user name that is not known
};

/// The parts of the identity that count, as bits.
namespace InstanceOptions {
constexpr int perUser = 1;
constexpr int omitVersion = 8;
constexpr int omitPath = 16;
} // namespace InstanceOptions

/// The name of the shared block and of the local server: 44 letters of Base64, free of slashes.
/// @param options bits of InstanceOptions; others do not matter
QString instanceName(const InstanceIdentity &identity, int options);
