#include "app/language.h"

#include <QLocale>

namespace {

bool isEnglish(const QString &name)
{
    return QLocale(name).language() == QLocale::English;
}

/// The first of the names that is English or has a translation decides.
QString translationForFirst(const QStringList &names, const QStringList &translations)
{
    for (const QString &name : names) {
        if (isEnglish(name)) {
            return {};
        }
        const QString code = translationFor(name, translations);
        if (!code.isEmpty()) {
            return code;
        }
    }
    return {};
}

} // namespace

QString translationFor(const QString &name, const QStringList &translations)
{
    const QLocale wanted(name);
    if (wanted.language() == QLocale::C) { // what QLocale makes of a name that is none
        return {};
    }
    QString sameLanguage;
    for (const QString &code : translations) {
        const QLocale offered(code);
        if (offered.language() != wanted.language() || offered.script() != wanted.script()) {
            continue;
        }
        if (offered.country() == wanted.country()) {
            return code;
        }
        if (sameLanguage.isEmpty()) {
            sameLanguage = code;
        }
    }
    return sameLanguage;
}

LanguageChoice chooseLanguage(const QString &vendorsChoice, const QString &usersChoice,
                              const QStringList &systemLanguages, const QStringList &translations)
{
    const QString wanted = usersChoice.isEmpty() ? vendorsChoice : usersChoice;
    if (wanted.compare(QLatin1String("system"), Qt::CaseInsensitive) == 0) {
        return {translationForFirst(systemLanguages, translations), {}};
    }
    if (wanted.isEmpty() || isEnglish(wanted)) {
        return {};
    }
    const QString code = translationFor(wanted, translations);
    return code.isEmpty() ? LanguageChoice{{}, wanted} : LanguageChoice{code, {}};
}
