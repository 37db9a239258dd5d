// The machine as the tests have it: it records what was asked of it and answers as it was told.
#pragma once

#include "FreshFolder.h"
#include "controls/Controls.h"
#include "desk/Desk.h"
#include "platform/Machine.h"

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace Tensarix::Tests {

using Strings = std::vector<std::string>;

struct MapSettings final : SettingsStore {
    std::map<std::pair<std::string, std::string>, std::string> Kept;
    std::vector<std::string> Written; // "key=text", in order
    std::string Doubt;

    std::string Remark() const override { return Doubt; }
    std::optional<std::string> Read(std::string_view section, std::string_view key) override {
        const auto found = Kept.find({std::string{section}, std::string{key}});
        if (found == Kept.end())
            return std::nullopt;
        return found->second;
    }
    void Write(std::string_view section, std::string_view key, std::string_view text) override {
        Kept[{std::string{section}, std::string{key}}] = text;
        Written.push_back(std::string{key}.append("=").append(text));
    }
    void Set(const std::string& key, const std::string& text) {
        Kept[{"TensarixSetting", key}] = text;
    }
    std::string Get(const std::string& key) {
        return Read("TensarixSetting", key).value_or("none");
    }
};

struct KeptClipboard final : Clipboard {
    std::string Held;
    int Clears = 0;

    void Clear() override {
        Held.clear();
        ++Clears;
    }
    void Set_Text(std::string_view text) override { Held = text; }
    std::string Text() override { return Held; }
};

struct RecordedVoice final : Voice {
    std::vector<std::string> Spoken;
    int Reaches = 0;
    void Speak(std::string_view text) override { Spoken.emplace_back(text); }
    void Reach() override { ++Reaches; }
};

class ScriptedMessages final : public Messages {
  public:
    std::vector<std::string> Shown; // "title|text|icon"
    bool Answer = true;
    std::function<void()> Meanwhile; // what happens while a box is open

    void Show(std::string_view text, std::string_view title, MessageIcon icon) override {
        Note(text, title, icon);
    }
    bool Ask_Yes_No(std::string_view text, std::string_view title, MessageIcon icon) override {
        Note(text, title, icon);
        return Answer;
    }

  private:
    void Note(std::string_view text, std::string_view title, MessageIcon icon) {
        const char* icons[] = {"stop", "exclamation", "information"};
        Shown.push_back(std::string{title} + "|" + std::string{text} + "|" +
                        icons[static_cast<int>(icon)]);
        Run(Meanwhile);
    }
};

struct HandClock final : Clock {
    double Now = 0;
    double Seconds() override { return Now; }
};

struct CountedEvents final : EventLoop {
    long Turns = 0;
    std::function<bool()> OnYield; // false: closing

    bool Yield() override { return OnYield ? OnYield() : true; }
    void Turn() override { ++Turns; }
    void When_Idle(std::function<void()> work) override { Waiting.push_back(std::move(work)); }

    std::deque<std::function<void()>> Waiting; // for idle time
    void Be_Idle() {
        while (!Waiting.empty()) {
            const std::function<void()> work = std::move(Waiting.front());
            Waiting.pop_front();
            work();
        }
    }
};

struct RecordedWindow final : MainWindow {
    std::vector<bool> OnTop;
    int Closes = 0;
    bool Obeys = true; // the desktop lets programs decide
    bool SetWindowOnTop(bool onTop) override {
        OnTop.push_back(onTop);
        return Obeys;
    }
    void Close() override { ++Closes; }
};

struct TestInstance final : Instance {
    bool Other = false;
    bool Answers = true;
    int Raises = 0;
    bool Other_Runs() override { return Other; }
    bool Raise_Other() override {
        ++Raises;
        return Answers;
    }
};

// Chooses the item of that text, which there must be.
inline void Select_Item(ComboBox& list, const std::string& text) {
    int at = list.Count() - 1;
    while (at >= 0 && list.Item(at) != text)
        --at;
    if (at < 0)
        throw std::runtime_error("no item " + text);
    list.Select(at);
}

// All of it, with the built store as the program's, and no data files.
struct TestMachine {
    FreshFolder Data;
    MapSettings Store;
    KeptClipboard Clip;
    RecordedVoice Speech;
    ScriptedMessages Boxes;
    HandClock Time;
    CountedEvents Events;
    RecordedWindow Window;
    TestInstance Guard;
    Machine Host{
        Store, Clip, Speech, Boxes, Time, Events, Window, Guard, {TENSARIX_PROGRAM_DIR, Data.Path}};
};

} // namespace Tensarix::Tests
