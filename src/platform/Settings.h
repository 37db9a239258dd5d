// The user's choices, kept from run to run as texts under a section and a key. All keys of the
// program stand in the table below.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace Tensarix {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // None: there is no such key, or the store can't be read.
    virtual std::optional<std::string> Read(std::string_view section, std::string_view key) = 0;
    // A store that can't be written is left as it is.
    virtual void Write(std::string_view section, std::string_view key, std::string_view text) = 0;
    // What the user has to know about the store as a whole; empty: nothing.
    virtual std::string Remark() const { return {}; }
};

struct SettingKey {
    std::string_view Name;
    std::string_view Default;
    std::string_view Section = "TensarixSetting";
};

// A key named with (i) is used with a number behind it, without a separator.
namespace Setting {
// NOLINTBEGIN(readability-identifier-naming): as the keys are named
inline constexpr SettingKey ReadOutLoud{"ReadOutLoud", "0"};
inline constexpr SettingKey AlwaysOnTop{"AlwaysOnTop", "0"};
inline constexpr SettingKey ProfileOption{"ProfileOption", "0"};
inline constexpr SettingKey DimOption{"DimOption", "0"};
inline constexpr SettingKey xProfileOption{"xProfileOption", "0"};
inline constexpr SettingKey xDimOption{"xDimOption", "0"};
inline constexpr SettingKey fProfileOption{"fProfileOption", "0"};
inline constexpr SettingKey fDimOption{"fDimOption", "0"};
inline constexpr SettingKey ShapeType{"ShapeType", "0"};
inline constexpr SettingKey fShapeType{"fShapeType", "0"};
inline constexpr SettingKey xShapeType{"xShapeType", "0"};
inline constexpr SettingKey zShapeType{"zShapeType", "0"}; // read only: nothing writes it
inline constexpr SettingKey ShapeSize{"ShapeSize", "0"};   // (family)
inline constexpr SettingKey zShapeSize{"zShapeSize", "0"}; // (family)
inline constexpr SettingKey fCriterion{"fCriterion", "0"}; // (family)
inline constexpr SettingKey fPoperty{"fPoperty", "0"};     // (family)
inline constexpr SettingKey fValue{"fValue", ""};          // (family)
inline constexpr SettingKey BeamSpan{"BeamSpan", "25"};    // alone, and (code tab)(method)
inline constexpr SettingKey AppliedCode{"AppliedCode", "1"};
inline constexpr SettingKey CodeOpt{"CodeOpt", "0"};
inline constexpr SettingKey YieldIndex{"YieldIndex", "0"}; // (code tab)
inline constexpr SettingKey CFactor{"CFactor", "0"};       // (code tab)(method)
inline constexpr SettingKey cFlexRows{"cFlexRows", "16"};
inline constexpr SettingKey WeldStrip{"WeldStrip", "1"};
inline constexpr SettingKey WeldView{"WeldView", "1"};
inline constexpr SettingKey CalcWtShapeType{"CalcWtShapeType", "0"};
inline constexpr SettingKey CalcWtShapeSize{"CalcWtShapeSize", "0"}; // (family)
// Where the windows were, in base 64.
inline constexpr SettingKey MainWindowPlace{"Geometry", "", "Window"};
inline constexpr SettingKey CalculatorPlace{"Calculator", "", "Window"};
inline constexpr SettingKey ComparePlace{"Compare", "", "Window"};
inline constexpr SettingKey CompareProfile{"CompareProfile", "0", "Window"};
// Filed by the calculator under the program's folder.
inline constexpr SettingKey MemoryIn{"MemoryIn", "0", "Setting"};
// NOLINTEND(readability-identifier-naming)
} // namespace Setting

class Settings {
  public:
    explicit Settings(SettingsStore& store) : store_(store) {}

    // The saved text of the key with what is appended to it, or the given default.
    std::string Text(const SettingKey& key, std::string_view appended = {}) const;
    std::string Text_Or(const SettingKey& key, std::string_view appended,
                        std::string_view fallback) const;
    // The same read as a number; a text that is no number fails.
    double Number(const SettingKey& key, std::string_view appended = {}) const;
    // A list position; a text that is no number or does not fit fails.
    int Position(const SettingKey& key, std::string_view appended = {}) const;
    // Zero is off, anything else on; a text that is no number fails.
    bool Flag(const SettingKey& key) const;

    void Save(const SettingKey& key, std::string_view text) const;
    void Save(const SettingKey& key, std::string_view appended, std::string_view text) const;

  private:
    SettingsStore& store_;
};

} // namespace Tensarix
