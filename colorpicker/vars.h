#pragma once

#include <QObject>

/// Kept as the picker's third utility class; it holds nothing of its own.
class Vars : public QObject
{
    Q_OBJECT

public:
    explicit Vars(QObject *parent = nullptr);
};
