#pragma once

#include <QString>

/// What the toolkit is told of this program, and how it is to treat it.
namespace Toolkit {

/// Comes before there is an application object.
void prepare();

/// Comes behind the application object.
void adapt();

/// Organisation, name and version. Comes behind the guard of one copy, on purpose: the name that
/// all copies share is made of the identity as Qt finds it by itself. Set earlier, it would part
/// this version from those that already run.
void identify(const QString &version);

} // namespace Toolkit
