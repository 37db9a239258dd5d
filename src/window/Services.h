// The machine as the desktop offers it.
#pragma once

#include "platform/Machine.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLockFile>
#include <QPointer>
#include <QSettings>

#include <memory>

class QWidget;

namespace Tensarix {

// A per-user INI file; a group is a section.
class IniSettings final : public SettingsStore {
  public:
    IniSettings();
    std::optional<std::string> Read(std::string_view section, std::string_view key) override;
    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    QSettings& File() { return file_; }

  private:
    QSettings file_;
};

class DesktopClipboard final : public Clipboard {
  public:
    void Clear() override;
    void Set_Text(std::string_view text) override;
    std::string Text() override;
};

class MessageBoxes final : public Messages {
  public:
    void Show(std::string_view text, std::string_view title, MessageIcon icon) override;
    bool Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) override;
};

class SteadyClock final : public Clock {
  public:
    SteadyClock() { timer_.start(); }
    double Seconds() override { return static_cast<double>(timer_.nsecsElapsed()) * 1e-9; }

  private:
    QElapsedTimer timer_;
};

class DesktopEvents final : public EventLoop {
  public:
    DesktopEvents() { timer_.start(); }
    bool Yield() override;
    void Turn() override;
    // The program is closing: every yield tells so from now on.
    void Close() { closing_ = true; }

  private:
    QElapsedTimer timer_;
    qint64 turned_ = 0;
    bool closing_ = false;
};

// The window itself is told once it exists.
class DesktopWindow final : public MainWindow {
  public:
    void Set_Widget(QWidget* widget) { widget_ = widget; }
    void Set_On_Top(bool onTop) override;
    void Close() override;

  private:
    QPointer<QWidget> widget_;
};

// A lock file of the user tells who was first; a local socket carries the wish to be raised. Both
// are free again when their program has ended, however it ended.
class SingleInstance final : public Instance {
  public:
    SingleInstance();
    bool Other_Runs() override;
    void Raise_Other() override;
    // The first instance: what to do when another one asks.
    void On_Raise(std::function<void()> raise);

  private:
    QLockFile lock_;
    QString socket_;
    QLocalServer server_;
    bool first_ = false;
};

// The program's own folder, and the one for its data files.
Folders Program_Folders();

} // namespace Tensarix
