// The user's settings in an INI file of the desktop's usual place and form.
#pragma once

#include "platform/Settings.h"

#include <QMap>
#include <QObject>
#include <QSettings>
#include <QString>

#include <optional>

namespace Tensarix {

// A group is a section. What is written is saved, all of it at once, by the next turn of the event
// loop, by Save, or at the end. The toolkit reads the file but does not save it: it takes a file
// that a full disk has cut short for a whole one, and leaves files behind when it is killed. What
// is no file, can't be read, or is far too large, is neither read nor overwritten.
class IniSettings final : public SettingsStore {
  public:
    IniSettings();
    ~IniSettings() override { Save(); }
    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    std::string Remark() const override;
    // Nothing to do if nothing has changed. A file that can't be written stays as it is; the next
    // change, or the end, tries again.
    void Save();
    // Takes what another program has saved since.
    void Read_Again();

  private:
    using Texts = QMap<QString, QString>; // by section/key
    Texts All() const;

    QString path_;
    std::optional<QSettings> file_; // none: it can't be used
    Texts changed_;                 // since the start; they go before the file
    bool unsaved_ = false, asked_ = false;
    QObject turn_;
};

} // namespace Tensarix
