// The voice of Windows: its speech interface (SAPI 5).
#pragma once

#include "platform/Machine.h"

#include <QObject>
#include <QString>
#include <QTimer>

#include <memory>
#include <vector>

struct ISpVoice;

namespace Tensarix {

// The system speaks in a thread of its own; what it tells comes by the event loop. It is asked for
// a voice at the first text, and again at each later one while there is none: then the text is
// dropped, and OnMissing runs in the next turn.
class SapiVoice final : public Voice {
  public:
    SapiVoice();
    // Silences what is being spoken.
    ~SapiVoice() override;
    void Speak(std::string_view text) override;
    void Reach() override;

  private:
    struct Utterance {
        unsigned long Stream; // the system's number of it
        QString Text;
    };
    struct Closer {
        void operator()(ISpVoice* voice) const;
    };

    bool Find_Voice();
    void Silence();
    void Tell_Missing();
    void Take_Events();
    void Reached(unsigned long stream, qsizetype at, qsizetype length);
    void Ended(unsigned long stream);

    std::unique_ptr<ISpVoice, Closer> voice_;
    std::vector<Utterance> said_; // being spoken, or waiting
    QTimer turn_;                 // runs out with the turn of the event loop in which a text came
    QObject later_;
};

} // namespace Tensarix
