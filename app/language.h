#pragma once

#include <QString>
#include <QStringList>

/// The language that the texts are to be in. English needs no translation and is the default,
/// whatever the system speaks.
struct LanguageChoice
{
    QString code;    ///< of a translation, such as "pt_BR"; empty for English
    QString unknown; ///< what was asked for and names no language that there is; else empty
};

/// The one of @p translations (codes) that a reader of the language @p name understands: that of
/// its country, or else another of the same language and script. Empty when there is none.
/// @param name of a locale, as "de", "pt-BR" or "zh_Hant_HK"
QString translationFor(const QString &name, const QStringList &translations);

/// Decides on the language: the user's choice goes before the vendor's. Either is a locale's name,
/// "system" for the first of @p systemLanguages that there is a translation for, or empty for none.
/// @param systemLanguages names of locales, the preferred first
/// @param translations codes of those that there are; English is always there
LanguageChoice chooseLanguage(const QString &vendorsChoice, const QString &usersChoice,
                              const QStringList &systemLanguages, const QStringList &translations);
