#pragma once

/// How a value stands in an INI file.
enum class StoredForm {
    Boolean,   ///< "true" or "false"
    OneOrZero, ///< "1" or "0"
    Integer,   ///< decimal
    Text,      ///< as it is
    Bytes,     ///< Qt's own byte-array notation
};

/// One key of an INI file. The name has no group; the accessors of AppSettings add it.
struct SettingKey
{
    const char *name;
    StoredForm form;
};

/// Keys of the settings file, group "settings".
namespace SettingKeys {
inline constexpr SettingKey appUrl{"appurl", StoredForm::Text};
// The one boolean choice that is stored as a number.
inline constexpr SettingKey startHidden{"start_hidden", StoredForm::OneOrZero};
inline constexpr SettingKey mainWindowGeometry{"mainWindowGeometry", StoredForm::Bytes};
inline constexpr SettingKey mainWindowState{"mainWindowState", StoredForm::Bytes};
inline constexpr SettingKey minimizeClose{"minimize_close", StoredForm::Boolean};
inline constexpr SettingKey stripeOption{"P751LEDStripe", StoredForm::Boolean};
inline constexpr SettingKey perKey{"PerKey", StoredForm::Boolean};
inline constexpr SettingKey backlightOn{"backlight_on", StoredForm::Boolean};
// Always the opposite of backlightOn; written for other programs, never read here.
inline constexpr SettingKey backlightOff{"backlight_off", StoredForm::Boolean};
inline constexpr SettingKey brightLevel{"brightlevel", StoredForm::Integer};
inline constexpr SettingKey dimTimer{"dimtimer", StoredForm::Integer};
inline constexpr SettingKey autoDim{"AutoDim", StoredForm::Boolean};
inline constexpr SettingKey touchWake{"touchwake", StoredForm::Boolean};
inline constexpr SettingKey effects{"effects", StoredForm::Integer};
inline constexpr SettingKey leftColour{"Zone1Color", StoredForm::Text};
inline constexpr SettingKey centreColour{"Zone2Color", StoredForm::Text};
inline constexpr SettingKey rightColour{"Zone3Color", StoredForm::Text};
inline constexpr SettingKey singleColour{"Zone4Color", StoredForm::Text};
inline constexpr SettingKey singleColourLast{"singlecolorselectedlast", StoredForm::Boolean};
inline constexpr SettingKey stripeLid{"StripeLid", StoredForm::Text};
} // namespace SettingKeys

/// Keys of the branding file, group "settings"; only read.
namespace BrandingKeys {
inline constexpr SettingKey appName{"appname", StoredForm::Text};
inline constexpr SettingKey highlightRed{"highlightcolor_RED", StoredForm::Integer};
inline constexpr SettingKey highlightGreen{"highlightcolor_GREEN", StoredForm::Integer};
inline constexpr SettingKey highlightBlue{"highlightcolor_BLUE", StoredForm::Integer};
// Scheme and host of the update server, for a vendor that has its own.
inline constexpr SettingKey updateServer{"updateserver", StoredForm::Text};
} // namespace BrandingKeys

/// Keys of the work file, group "workqueue"; only written.
namespace WorkKeys {
inline constexpr SettingKey updatePending{"Lumikey", StoredForm::Boolean};
} // namespace WorkKeys
