#include "platform/Settings.h"

#include "common/NumberText.h"

namespace Tensarix {

namespace {

std::string Full_Key(const SettingKey& key, std::string_view appended) {
    return std::string{key.Name}.append(appended);
}

} // namespace

std::string Settings::Text(const SettingKey& key, std::string_view appended) const {
    return Text_Or(key, appended, key.Default);
}

std::string Settings::Text_Or(const SettingKey& key, std::string_view appended,
                              std::string_view fallback) const {
    return store_.Read(key.Section, Full_Key(key, appended)).value_or(std::string{fallback});
}

double Settings::Number(const SettingKey& key, std::string_view appended) const {
    return Text_Number(Text(key, appended));
}

int Settings::Position(const SettingKey& key, std::string_view appended) const {
    return Whole_16(Number(key, appended));
}

bool Settings::Flag(const SettingKey& key) const {
    return Number(key) != 0;
}

void Settings::Save(const SettingKey& key, std::string_view text) const {
    Save(key, {}, text);
}

void Settings::Save(const SettingKey& key, std::string_view appended, std::string_view text) const {
    store_.Write(key.Section, Full_Key(key, appended), text);
}

} // namespace Tensarix
