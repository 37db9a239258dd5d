#include "window/desktop/SapiVoice.h"

#include "controls/View.h"
#include "window/To_Qt.h"

#include <QLocale>

#include <algorithm>

#include <windows.h>
// It needs the one above.
#include <sapi.h>

namespace Tensarix {

namespace {

// As the system's own header counts events; not every one has the macro for it.
constexpr ULONGLONG Event_Bit(SPEVENTENUM event) {
    return 1ULL << event | 1ULL << SPEI_RESERVED1 | 1ULL << SPEI_RESERVED2;
}

struct Releaser {
    void operator()(IUnknown* object) const { object->Release(); }
};
template <typename Interface>
using Held = std::unique_ptr<Interface, Releaser>;

// The first voice with these attributes (nullptr: any); none: there is no such voice.
Held<ISpObjectToken> Voice_With(const wchar_t* attributes) {
    ISpObjectTokenCategory* category = nullptr;
    if (FAILED(CoCreateInstance(__uuidof(SpObjectTokenCategory), nullptr, CLSCTX_ALL,
                                __uuidof(ISpObjectTokenCategory),
                                reinterpret_cast<void**>(&category))))
        return nullptr;
    const Held<ISpObjectTokenCategory> heldCategory{category};
    IEnumSpObjectTokens* all = nullptr;
    if (FAILED(category->SetId(SPCAT_VOICES, FALSE)) ||
        FAILED(category->EnumTokens(attributes, nullptr, &all)))
        return nullptr;
    const Held<IEnumSpObjectTokens> heldAll{all};
    ISpObjectToken* token = nullptr;
    return Held<ISpObjectToken>{all->Next(1, &token, nullptr) == S_OK ? token : nullptr};
}

// The texts are English, but a user's own kind of English stands.
void Choose_Language(ISpVoice& voice) {
    if (QLocale::system().language() == QLocale::English)
        return;
    for (const wchar_t* language : {L"Language=409", L"Language=809"}) // American, British
        if (const auto token = Voice_With(language)) {
            voice.SetVoice(token.get());
            return;
        }
}

} // namespace

void SapiVoice::Closer::operator()(ISpVoice* voice) const {
    voice->Release();
}

SapiVoice::SapiVoice() {
    turn_.setSingleShot(true);
}

SapiVoice::~SapiVoice() {
    if (!voice_)
        return;
    voice_->SetNotifySink(nullptr); // no event finds this object gone
    Silence();
}

bool SapiVoice::Find_Voice() {
    if (voice_)
        return true;
    ISpVoice* voice = nullptr;
    if (FAILED(CoCreateInstance(__uuidof(SpVoice), nullptr, CLSCTX_ALL, __uuidof(ISpVoice),
                                reinterpret_cast<void**>(&voice))))
        return false;
    std::unique_ptr<ISpVoice, Closer> found{voice};
    if (!Voice_With(nullptr))
        return false;
    Choose_Language(*voice);
    const ULONGLONG events = Event_Bit(SPEI_WORD_BOUNDARY) | Event_Bit(SPEI_END_INPUT_STREAM);
    voice->SetInterest(events, events);
    voice->SetNotifyCallbackFunction(
        [](WPARAM, LPARAM self) { reinterpret_cast<SapiVoice*>(self)->Take_Events(); }, 0,
        reinterpret_cast<LPARAM>(this));
    voice_ = std::move(found);
    return true;
}

void SapiVoice::Speak(std::string_view text) {
    if (text.empty()) {
        Silence();
        return;
    }
    if (!turn_.isActive()) {
        Silence();
        turn_.start(0);
    }
    const QString spoken = To_Qt(text);
    ULONG stream = 0;
    if (Find_Voice() && SUCCEEDED(voice_->Speak(reinterpret_cast<LPCWSTR>(spoken.utf16()),
                                                SPF_ASYNC | SPF_IS_NOT_XML, &stream)))
        said_.push_back({stream, spoken});
    else
        Tell_Missing();
}

void SapiVoice::Reach() {
    if (!Find_Voice())
        Tell_Missing();
}

void SapiVoice::Silence() {
    if (said_.empty())
        return;
    said_.clear();
    voice_->Speak(nullptr, SPF_ASYNC | SPF_PURGEBEFORESPEAK, nullptr);
}

// No callback runs inside Speak.
void SapiVoice::Tell_Missing() {
    voice_.reset(); // the next text looks for another
    said_.clear();
    QMetaObject::invokeMethod(
        &later_, [this] { Run(OnMissing); }, Qt::QueuedConnection);
}

void SapiVoice::Take_Events() {
    SPEVENT event{};
    ULONG taken = 0;
    while (voice_ && voice_->GetEvents(1, &event, &taken) == S_OK && taken == 1)
        if (event.eEventId == SPEI_WORD_BOUNDARY)
            Reached(event.ulStreamNum, static_cast<qsizetype>(event.lParam),
                    static_cast<qsizetype>(event.wParam));
        else if (event.eEventId == SPEI_END_INPUT_STREAM)
            Ended(event.ulStreamNum);
}

// The system counts in UTF-16.
void SapiVoice::Reached(unsigned long stream, qsizetype at, qsizetype length) {
    const auto text = std::find_if(said_.begin(), said_.end(),
                                   [stream](const Utterance& one) { return one.Stream == stream; });
    if (!OnWord || text == said_.end())
        return;
    const auto bytes = [](QStringView part) {
        return static_cast<std::size_t>(part.toUtf8().size());
    };
    const QStringView whole(text->Text);
    OnWord(bytes(whole.left(at)), bytes(whole.mid(at, length)));
}

void SapiVoice::Ended(unsigned long stream) {
    const auto gone =
        std::erase_if(said_, [stream](const Utterance& one) { return one.Stream == stream; });
    if (gone > 0 && said_.empty())
        Run(OnEnd);
}

} // namespace Tensarix
