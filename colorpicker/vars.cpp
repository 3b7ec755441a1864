#include "colorpicker/vars.h"

Vars::Vars(QObject *parent)
    : QObject(parent)
{}
