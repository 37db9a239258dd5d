// The voice of the desktop: its speech service (Speech Dispatcher), spoken to over the service's
// own socket in its own protocol (SSIP, the Speech Synthesis Interface Protocol).
#pragma once

#include "platform/Machine.h"
#include "speech/WordMarks.h"

#include <QByteArray>
#include <QLocalSocket>
#include <QString>
#include <QTimer>

#include <deque>
#include <utility>
#include <vector>

namespace Tensarix {

// Nothing here waits: whatever the service has to say comes by the event loop, on whose thread the
// callbacks run too. The service is looked for at the first text, and started if it isn't there;
// a text that finds none is dropped, and OnMissing runs. After its death the next text looks for it
// again.
class DesktopVoice final : public Voice {
  public:
    DesktopVoice();
    // Silences what is being spoken; takes a fraction of a second at the most.
    ~DesktopVoice() override;
    void Speak(std::string_view text) override;
    void Reach() override;

  private:
    struct Utterance {
        QByteArray Marked;
        std::vector<WordPlace> Words;
        int Id = 0; // the service's own
    };
    using Lines = std::vector<QByteArray>;
    // What the service has to answer before it is told anything else.
    enum class Awaited { Nothing, Setting, LeaveToSend, Id, Silence };

    void Silence();
    void Reach_Service();
    void Connect();
    void Not_Reached();
    void Give_Up();
    void Connected();
    void Lost();

    void Send_Next();
    void Send(const QByteArray& line, Awaited answer);
    void Send_Text();
    void Read();
    void Read_Line(const QByteArray& line);
    void Answered(bool well, const Lines& before);
    void Told(int code, const Lines& before);
    void Reached(int id, const QByteArray& mark);
    void Ended(int id);
    bool Is_Busy() const;
    bool Is_Said(int id) const;

    QLocalSocket socket_;
    QTimer turn_;  // runs out with the turn of the event loop in which a text came
    QTimer retry_; // until the service, just started, listens
    int tries_ = 0;
    bool connected_ = false;

    std::deque<Utterance> due_; // not yet handed to the service
    Utterance sending_;
    std::vector<Utterance> said_; // being spoken, or waiting in the service
    bool silence_ = false;        // the service has to drop what it holds

    Awaited awaited_ = Awaited::Nothing;
    int setting_ = 0;                          // the next one to be sent
    QByteArray read_;                          // an unfinished line
    Lines before_;                             // the lines of an answer before its last one
    std::vector<std::pair<int, Lines>> early_; // notices of a text whose id has not come yet
};

} // namespace Tensarix
