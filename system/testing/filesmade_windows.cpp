#include "system/testing/filesmade.h"

FilesMade::FilesMade(const QString & /*folder*/) {}

FilesMade::~FilesMade() = default;

QStringList FilesMade::taken() const
{
    return {};
}
