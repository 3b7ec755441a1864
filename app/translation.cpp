#include "app/translation.h"

#include "app/appsettings.h"
#include "app/language.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace {

/// What every translation of this program has.
//: The name of your language in itself, by which the installer offers it
constexpr const char *languageName = QT_TRANSLATE_NOOP("MainWindow", "English");

/// The placeholders of a text, sorted, for they may stand in another order.
QStringList placeholders(const QString &text)
{
    static const QRegularExpression placeholder(QStringLiteral("%L?[0-9]{1,2}"));
    QStringList found;
    for (auto matches = placeholder.globalMatch(text); matches.hasNext();) {
        found += matches.next().captured();
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

// A static library's resources are linked in only when something asks for them; outside any
// namespace, as the macro demands.
static void registerTranslations()
{
    Q_INIT_RESOURCE(translations);
}

bool keepsForm(const QString &source, const QString &translated)
{
    const QLatin1Char lineEnd('\n');
    return placeholders(source) == placeholders(translated)
           && source.count(lineEnd) == translated.count(lineEnd)
           && source.endsWith(lineEnd) == translated.endsWith(lineEnd);
}

QString Translation::builtInFolder()
{
    registerTranslations();
    return QStringLiteral(":/translations");
}

QStringList Translation::codes(const QString &folder)
{
    QStringList codes;
    const QRegularExpression name(QStringLiteral("^lumikey_(.+)\\.qm$"));
    const QStringList files = QDir(folder).entryList(QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QRegularExpressionMatch match = name.match(file);
        if (match.hasMatch()) {
            codes += match.captured(1);
        }
    }
    return codes;
}

std::unique_ptr<Translation> Translation::load(const QString &folder, const QString &code)
{
    auto translation = std::make_unique<Translation>();
    const QString file = folder + QStringLiteral("/lumikey_") + code + QStringLiteral(".qm");
    // Qt would look for files of shorter names, too, when there is none of this name.
    if (!QFile::exists(file) || !translation->QTranslator::load(file)) {
        qDebug().noquote() << "Cannot read translation:" << file;
        return nullptr;
    }
    if (translationFor(translation->language(), {code}).isEmpty()
        || translation->translate("MainWindow", languageName, nullptr, -1).isEmpty()) {
        qDebug().noquote() << "Not a translation of Lumikey into" << code + QLatin1Char(':')
                           << file;
        return nullptr;
    }
    return translation;
}

QString Translation::translate(const char *context, const char *sourceText,
                               const char *disambiguation, int n) const
{
    const QString translated = QTranslator::translate(context, sourceText, disambiguation, n);
    if (translated.isEmpty() || keepsForm(QString::fromUtf8(sourceText), translated)) {
        return translated;
    }
    if (!reported.contains(sourceText)) {
        reported.insert(sourceText);
        qDebug() << "Placeholders or line ends differ in the translation of" << sourceText;
    }
    return {};
}

void speakChosenLanguage(const AppSettings &settings, const QStringList &systemLanguages,
                         const QString &folder)
{
    const LanguageChoice choice =
        chooseLanguage(settings.read(BrandingKeys::language), settings.read(SettingKeys::language),
                       systemLanguages, Translation::codes(folder));
    if (!choice.unknown.isEmpty()) {
        qDebug() << "Unknown language:" << choice.unknown;
    }
    if (choice.code.isEmpty()) {
        return;
    }
    if (auto translation = Translation::load(folder, choice.code)) {
        translation->setParent(QCoreApplication::instance());
        QCoreApplication::installTranslator(translation.release());
    }
}
