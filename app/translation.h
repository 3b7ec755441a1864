#pragma once

#include <QSet>
#include <QString>
#include <QTranslator>

#include <memory>

class AppSettings;

/// Whether a translated text can stand in for its source: it has the same placeholders ("%1", each
/// as often) and as many line ends, and ends with one where the source does.
bool keepsForm(const QString &source, const QString &translated);

/// One of the program's translations. A text that it lacks, or that it has without the source's
/// form, shows in English.
class Translation final : public QTranslator
{
public:
    /// Loads the translation lumikey_<code>.qm of @p folder; null, after a line in the log, when
    /// there is none, or when the file is damaged or not this program's in that language.
    static std::unique_ptr<Translation> load(const QString &folder, const QString &code);

    /// Codes of the translations in @p folder, by the names of their files.
    static QStringList codes(const QString &folder);

    /// The folder of those that are built into the program.
    static QString builtInFolder();

    /// A text without its source's form is told to the log when it is first asked for: only then
    /// are both texts at hand, a file of translations does not say of what they are.
    QString translate(const char *context, const char *sourceText, const char *disambiguation,
                      int n) const override;

private:
    mutable QSet<QByteArray> reported;
};

/// Makes the application speak the language that the settings and the branding file choose, out of
/// the translations in @p folder. Comes before the first text is shown. Whatever is wrong leaves
/// English and one line in the log.
/// @param systemLanguages see chooseLanguage()
void speakChosenLanguage(const AppSettings &settings, const QStringList &systemLanguages,
                         const QString &folder = Translation::builtInFolder());
