// What the machine offers, as small interfaces. The window room implements them for the desktop,
// the tests bring stand-ins that record.
#pragma once

#include "platform/Settings.h"

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace Tensarix {

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void Clear() = 0;
    virtual void Set_Text(std::string_view text) = 0;
    virtual std::string Text() = 0;
};

class Voice {
  public:
    virtual ~Voice() = default;
    // Returns at once, whatever the speech service does; no callback runs meanwhile. Texts of one
    // turn of the event loop belong together and are spoken one after another. The first text of a
    // later turn replaces whatever is still being spoken. An empty text silences at once, and
    // drops what was given before it in the same turn. Without a speech service nothing happens.
    virtual void Speak(std::string_view text) = 0;
    // Called with the place and length, in bytes of the text, of the word that is being spoken.
    // Not every service can tell.
    std::function<void(std::size_t at, std::size_t length)> OnWord;
    // What was being spoken has come to its end, the last text of its turn too, or was cut short
    // by the service. Not called for what the program itself silenced or replaced.
    std::function<void()> OnEnd;
    // Looks for the speech service without saying anything.
    virtual void Reach() = 0;
    // No service was found, for a text or by Reach.
    std::function<void()> OnMissing;
};

enum class MessageIcon { Stop, Exclamation, Information };

class Messages {
  public:
    virtual ~Messages() = default;
    // Returns when the user has answered.
    virtual void Show(std::string_view text, std::string_view title, MessageIcon icon) = 0;
    virtual bool Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    // Seconds from some fixed moment, never falling.
    virtual double Seconds() = 0;
};

class EventLoop {
  public:
    virtual ~EventLoop() = default;
    // Lets pending events run. Nearly free: it looks at the clock and turns the loop at most every
    // few milliseconds. False: the program is closing and whoever yields has to come to an end.
    virtual bool Yield() = 0;
    // Lets all pending events run now.
    virtual void Turn() = 0;
    // Runs some work once, later, when no event is pending.
    virtual void When_Idle(std::function<void()> work) = 0;
};

class MainWindow {
  public:
    virtual ~MainWindow() = default;
    // Above all other windows, or back among them. False: the desktop decides that itself.
    virtual bool SetWindowOnTop(bool onTop) = 0;
    virtual void Close() = 0;
};

// One program a user: a second start raises the first one's window and ends.
class Instance {
  public:
    virtual ~Instance() = default;
    virtual bool Other_Runs() = 0;
    // Returns when the other one has been raised or has ended: then no other runs. False: it runs,
    // and doesn't answer for long.
    virtual bool Raise_Other() = 0;
};

// The store lies in the program's folder. The data files lie there too, or in the user's data
// folder where the program's can't be written.
struct Folders {
    std::filesystem::path Program;
    std::filesystem::path Data;
};

struct Machine {
    SettingsStore& Store;
    Clipboard& Clip;
    Voice& Speech;
    Messages& Boxes;
    Clock& Time;
    EventLoop& Events;
    MainWindow& Window;
    Instance& Guard;
    Folders Places;
};

} // namespace Tensarix
