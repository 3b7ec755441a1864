#pragma once

#include <QLatin1String>
#include <QMainWindow>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

/// The window whose form the tests look at. formwindow.cpp alone knows how it is made: a plain main
/// window that holds the form and nothing else.
/// @param name object name given before the form is set up; empty: none
std::unique_ptr<QMainWindow> makeWindow(const QString &name = QString());

/// True while nothing has acted on the form since it was built.
inline bool isUntouched(const QMainWindow &window)
{
    return window.metaObject() == &QMainWindow::staticMetaObject;
}

/// The text that a widget shows; empty for a widget without one.
inline QString shownText(const QWidget &widget)
{
    return widget.property("text").toString();
}

/// True when a list of object names holds this one.
template<std::size_t size>
bool lists(const std::array<const char *, size> &names, const char *object)
{
    return std::any_of(std::begin(names), std::end(names),
                       [object](const char *name) { return std::strcmp(name, object) == 0; });
}
