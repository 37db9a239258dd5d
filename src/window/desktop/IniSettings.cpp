#include "window/desktop/IniSettings.h"

#include "common/ReplaceFile.h"
#include "window/To_Qt.h"
#include "window/desktop/UserFolders.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cctype>
#include <utility>

namespace Tensarix {

namespace {

constexpr std::size_t mostBytes = 4u << 20; // far more than the program ever writes

std::filesystem::path File_Path(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

// A pipe would keep the program waiting for ever. No file is as good as an empty one.
bool Can_Be_Read(const QString& path) {
    return !QFileInfo::exists(path) || Read_Whole_File(File_Path(path), mostBytes);
}

// As the file has it: a section that is a path begins without its slash.
QString Setting_Path(std::string_view section, std::string_view key) {
    const QString path = To_Qt(section) + QLatin1Char('/') + To_Qt(key);
    return path.split(QLatin1Char('/'), Qt::SkipEmptyParts).join(QLatin1Char('/'));
}

// A text with commas that was written by hand is a list to the toolkit.
QString Text_Of(const QVariant& value) {
    return value.toStringList().join(QLatin1String(", "));
}

bool Is_Plain(char16_t c) {
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9') ||
           c == u'_' || c == u'-' || c == u'.';
}

QByteArray Hex(uint code, int digits) {
    return QByteArray::number(code, 16).toUpper().rightJustified(digits, '0');
}

QByteArray Ini_Name(QStringView name) {
    QByteArray out;
    for (const QChar c : name)
        if (Is_Plain(c.unicode()))
            out += static_cast<char>(c.unicode());
        else if (c == u'/')
            out += '\\';
        else if (c.unicode() <= 0xFF)
            out += '%' + Hex(c.unicode(), 2);
        else
            out += "%U" + Hex(c.unicode(), 4);
    return out;
}

QByteArray Ini_Text(const QString& text) {
    if (!text.isEmpty() &&
        std::all_of(text.begin(), text.end(), [](QChar c) { return Is_Plain(c.unicode()); }))
        return text.toLatin1();
    QByteArray out = text.startsWith(u'@') ? "\"@" : "\""; // a single one begins a toolkit's type
    bool afterCode = false; // a digit behind a code would belong to it
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        afterCode = byte < 0x20 || byte == 0x7F || (afterCode && std::isxdigit(byte));
        if (afterCode)
            out += "\\x" + Hex(byte, 2);
        else if (c == '"' || c == '\\')
            out += QByteArray("\\") + c;
        else
            out += c;
    }
    return out + '"';
}

// Keys come in their order, and so those of a section together. One without a section belongs to
// the toolkit's general one.
QByteArray Ini_Image(const QMap<QString, QString>& texts) {
    QByteArray out;
    QString section;
    for (auto it = texts.begin(); it != texts.end(); ++it) {
        const qsizetype slash = it.key().indexOf(u'/');
        const QString own = slash < 0 ? QStringLiteral("General") : it.key().left(slash);
        if (own != section) {
            out += (section.isEmpty() ? "[" : "\n[") + Ini_Name(own) + "]\n";
            section = own;
        }
        out += Ini_Name(QStringView(it.key()).mid(slash + 1)) + '=' + Ini_Text(it.value()) + '\n';
    }
    return out;
}

} // namespace

IniSettings::IniSettings() : path_(Settings_Folder() + QStringLiteral("/Tensarix.ini")) {
    if (Can_Be_Read(path_))
        file_.emplace(path_, QSettings::IniFormat);
}

std::string IniSettings::Remark() const {
    return file_ ? std::string{}
                 : "The settings can't be read, and won't be saved: " + path_.toStdString();
}

std::optional<std::string> IniSettings::Read(std::string_view section, std::string_view key) {
    const QString path = Setting_Path(section, key);
    if (const auto found = changed_.constFind(path); found != changed_.constEnd())
        return found->toStdString();
    if (!file_ || !file_->contains(path))
        return std::nullopt;
    return Text_Of(file_->value(path)).toStdString();
}

void IniSettings::Write(std::string_view section, std::string_view key, std::string_view text) {
    if (Read(section, key) == text)
        return;
    changed_[Setting_Path(section, key)] = To_Qt(text);
    unsaved_ = true;
    if (std::exchange(asked_, true))
        return;
    QMetaObject::invokeMethod(
        &turn_,
        [this] {
            asked_ = false;
            Save();
        },
        Qt::QueuedConnection);
}

IniSettings::Texts IniSettings::All() const {
    Texts all;
    const QStringList keys = file_->allKeys();
    for (const QString& key : keys)
        all[key] = Text_Of(file_->value(key));
    all.insert(changed_);
    return all;
}

void IniSettings::Read_Again() {
    if (file_ && Can_Be_Read(path_))
        file_->sync();
}

void IniSettings::Save() {
    if (!unsaved_ || !file_ || !Can_Be_Read(path_)) // what stands there would be lost
        return;
    file_->sync();
    const QByteArray image = Ini_Image(All());
    QDir().mkpath(QFileInfo(path_).path());
    unsaved_ = !Replace_File(File_Path(path_), Bytes(image.begin(), image.end()));
}

} // namespace Tensarix
