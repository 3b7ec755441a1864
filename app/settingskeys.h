#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <limits>

/// How a value stands in an INI file.
enum class StoredForm {
    Boolean,   ///< "true" or "false"
    OneOrZero, ///< "1" or "0"
    Integer,   ///< decimal
    Text,      ///< as it is
    Bytes,     ///< Qt's own byte-array notation
};

/// What every key of an INI file has. The name has no group; the accessors of AppSettings add it.
struct SettingKey
{
    const char *name;
    StoredForm form;
};

/// The file that a key is of, and with it what may be done: the settings are read and written, the
/// branding is only read, the work queue only written.
enum class IniFile { Settings, Branding, Work };

/// What is made of a stored value that is not one of the key's. Only numbers have bounds.
template<class Value> struct Bounds
{
    constexpr Value applied(const Value &value) const { return value; }
};

/// What is read in place of a number beyond its bounds.
enum class Beyond { ReadsAsNearest, ReadsAsZero };

template<> struct Bounds<int>
{
    int lowest = std::numeric_limits<int>::min();
    int highest = std::numeric_limits<int>::max();
    Beyond beyond = Beyond::ReadsAsNearest;

    constexpr int applied(int value) const
    {
        const int nearest = std::clamp(value, lowest, highest);
        return beyond == Beyond::ReadsAsZero && nearest != value ? 0 : nearest;
    }
};

template<class Value> inline constexpr StoredForm usualForm = StoredForm::Text;
template<> inline constexpr StoredForm usualForm<bool> = StoredForm::Boolean;
template<> inline constexpr StoredForm usualForm<int> = StoredForm::Integer;
template<> inline constexpr StoredForm usualForm<QByteArray> = StoredForm::Bytes;

/// A key with the type of its values, which AppSettings::read() gives and AppSettings::write()
/// takes. The default of a key is its type's empty value: false, 0, "" or no bytes. No key has
/// another, because a missing key and an empty one mean the same to every program of these files.
template<class Value, IniFile file = IniFile::Settings> struct Key : SettingKey
{
    constexpr explicit Key(const char *keyName, Bounds<Value> itsBounds = {})
        : SettingKey{keyName, usualForm<Value>}
        , bounds(itsBounds)
    {}
    constexpr Key(const char *keyName, StoredForm itsForm)
        : SettingKey{keyName, itsForm}
    {}

    /// What a stored value is read as; an invalid one, or one that is no such value, as the
    /// default.
    Value from(const QVariant &stored) const { return bounds.applied(stored.value<Value>()); }

    Bounds<Value> bounds;
};

/// Keys of the settings file, group "settings".
namespace SettingKeys {
inline constexpr Key<QString> appUrl("appurl");
// The one boolean choice that is stored as a number.
inline constexpr Key<bool> startHidden("start_hidden", StoredForm::OneOrZero);
inline constexpr Key<QByteArray> mainWindowGeometry("mainWindowGeometry");
inline constexpr Key<QByteArray> mainWindowState("mainWindowState");
inline constexpr Key<bool> minimizeClose("minimize_close");
inline constexpr Key<bool> stripeOption("P751LEDStripe");
inline constexpr Key<bool> perKey("PerKey");
inline constexpr Key<bool> backlightOn("backlight_on");
// Always the opposite of backlightOn; written for other programs, never read here.
inline constexpr Key<bool> backlightOff("backlight_off");
inline constexpr Key<int> brightLevel("brightlevel", {0, 100}); // percent
// Indices of lists; one that the list does not have selects the first item.
inline constexpr Key<int> dimTimer("dimtimer", {0, 8, Beyond::ReadsAsZero});
inline constexpr Key<bool> autoDim("AutoDim");
inline constexpr Key<bool> touchWake("touchwake");
inline constexpr Key<int> effects("effects", {0, 7, Beyond::ReadsAsZero});
inline constexpr Key<QString> leftColour("Zone1Color");
inline constexpr Key<QString> centreColour("Zone2Color");
inline constexpr Key<QString> rightColour("Zone3Color");
inline constexpr Key<QString> singleColour("Zone4Color");
inline constexpr Key<bool> singleColourLast("singlecolorselectedlast");
inline constexpr Key<QString> stripeLid("StripeLid");
// A locale's name, or "system"; goes before the branding's. Never written here: the installer does.
inline constexpr Key<QString> language("language");
} // namespace SettingKeys

/// Keys of the branding file, group "settings".
namespace BrandingKeys {
template<class Value> using BrandingKey = Key<Value, IniFile::Branding>;

inline constexpr BrandingKey<QString> appName("appname");
// Not bounded: with one channel beyond 255 the three are no colour, rather than another colour.
inline constexpr BrandingKey<int> highlightRed("highlightcolor_RED");
inline constexpr BrandingKey<int> highlightGreen("highlightcolor_GREEN");
inline constexpr BrandingKey<int> highlightBlue("highlightcolor_BLUE");
// Scheme and host of the update server, for a vendor that has its own.
inline constexpr BrandingKey<QString> updateServer("updateserver");
// The vendor's choice, as the setting of that name.
inline constexpr BrandingKey<QString> language("language");
} // namespace BrandingKeys

/// Keys of the work file, group "workqueue".
namespace WorkKeys {
inline constexpr Key<bool, IniFile::Work> updatePending("Lumikey");
} // namespace WorkKeys
