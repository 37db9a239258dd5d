#include "window/desktop/DesktopVoice.h"

#include "controls/View.h"
#include "window/To_Qt.h"

#include <QByteArrayList>
#include <QDir>
#include <QElapsedTimer>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace Tensarix {

namespace {

constexpr int reachTries = 150; // a service that has just been started takes a moment
constexpr int reachWaitMs = 100;
constexpr int lastWordsMs = 200; // how long the end of the program waits for silence

// Codes of the protocol.
constexpr int markReached = 700, textEnded = 702, textCancelled = 703;
constexpr int codeDigits = 3;

const QString programName = QStringLiteral("speech-dispatcher");

// What each connection starts with. Texts of this priority wait for each other; the language is
// that of the texts, but a user's own kind of English stands.
QByteArrayList Connection_Settings() {
    QByteArrayList settings{"CLIENT_NAME user:tensarix:readout",
                            "SSML_MODE ON",
                            "NOTIFICATION INDEX_MARKS ON",
                            "NOTIFICATION END ON",
                            "NOTIFICATION CANCEL ON",
                            "PRIORITY MESSAGE"};
    if (QLocale::system().language() != QLocale::English)
        settings.append("LANGUAGE en");
    return settings;
}

// Where the service listens; empty if that is no socket of this machine.
QString Service_Address() {
    const QString method = QStringLiteral("unix_socket");
    const QStringList address =
        qEnvironmentVariable("SPEECHD_ADDRESS", method).split(QLatin1Char(':'));
    if (address.first() != method)
        return {};
    if (address.size() > 1)
        return address.mid(1).join(QLatin1Char(':'));
    const QString caches = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
    return qEnvironmentVariable("XDG_RUNTIME_DIR", caches) +
           QStringLiteral("/speech-dispatcher/speechd.sock");
}

// The service itself decides whether the user lets it be started so.
bool Start_Service() {
    QProcess service;
    service.setProgram(QStandardPaths::findExecutable(programName));
    service.setArguments({QStringLiteral("--spawn"), QStringLiteral("--communication-method"),
                          QStringLiteral("unix_socket"), QStringLiteral("--socket-path"),
                          Service_Address()});
    service.setWorkingDirectory(QDir::rootPath());
    service.setStandardOutputFile(QProcess::nullDevice());
    service.setStandardErrorFile(QProcess::nullDevice());
    return !service.program().isEmpty() && service.startDetached();
}

} // namespace

DesktopVoice::DesktopVoice() {
    turn_.setSingleShot(true);
    retry_.setSingleShot(true);
    QObject::connect(&retry_, &QTimer::timeout, &socket_, [this] { Connect(); });
    QObject::connect(&socket_, &QLocalSocket::connected, &socket_, [this] { Connected(); });
    QObject::connect(&socket_, &QLocalSocket::readyRead, &socket_, [this] { Read(); });
    QObject::connect(&socket_, &QLocalSocket::disconnected, &socket_, [this] { Lost(); });
    QObject::connect(&socket_, &QLocalSocket::errorOccurred, &socket_, [this] {
        if (!connected_)
            Not_Reached();
    });
}

DesktopVoice::~DesktopVoice() {
    OnWord = nullptr;
    OnEnd = nullptr;
    OnMissing = nullptr;
    Silence();
    QElapsedTimer timer;
    timer.start();
    while (connected_ && (silence_ || awaited_ != Awaited::Nothing) &&
           timer.elapsed() < lastWordsMs)
        socket_.waitForReadyRead(lastWordsMs / 4);
    socket_.disconnect();
    if (connected_ && awaited_ == Awaited::Nothing) {
        socket_.write("QUIT\r\n");
        socket_.flush();
    }
    socket_.abort();
}

void DesktopVoice::Speak(std::string_view text) {
    if (text.empty()) {
        Silence();
        return;
    }
    if (!turn_.isActive()) {
        Silence();
        turn_.start(0);
    }
    std::vector<WordPlace> words = Words_Of(text);
    due_.push_back({To_Qt(Marked_Text(text, words)).toUtf8(), std::move(words)});
    if (connected_)
        Send_Next();
    else
        Reach_Service();
}

void DesktopVoice::Reach() {
    if (!connected_)
        Reach_Service();
}

void DesktopVoice::Silence() {
    due_.clear();
    if (Is_Busy())
        silence_ = true;
    said_.clear();
    Send_Next();
}

// The service holds a text, or is about to.
bool DesktopVoice::Is_Busy() const {
    return !said_.empty() || awaited_ == Awaited::LeaveToSend || awaited_ == Awaited::Id;
}

void DesktopVoice::Reach_Service() {
    if (retry_.isActive() || socket_.state() != QLocalSocket::UnconnectedState)
        return;
    if (Service_Address().isEmpty()) {
        Give_Up();
        return;
    }
    tries_ = 0;
    Connect();
}

void DesktopVoice::Connect() {
    socket_.connectToServer(Service_Address());
}

void DesktopVoice::Not_Reached() {
    const bool canCome = tries_ > 0 || Start_Service();
    if (canCome && ++tries_ <= reachTries)
        retry_.start(reachWaitMs);
    else
        Give_Up();
}

void DesktopVoice::Give_Up() {
    due_.clear();
    Run(OnMissing);
}

void DesktopVoice::Connected() {
    connected_ = true;
    setting_ = 0;
    Send_Next();
}

// The service has died or been stopped: what it held is gone, and what it was told.
void DesktopVoice::Lost() {
    if (!connected_)
        return;
    const bool spoke = Is_Busy() && !silence_;
    connected_ = false;
    silence_ = false;
    awaited_ = Awaited::Nothing;
    due_.clear();
    said_.clear();
    early_.clear();
    read_.clear();
    before_.clear();
    if (spoke)
        Run(OnEnd);
}

void DesktopVoice::Send_Next() {
    static const QByteArrayList settings = Connection_Settings();
    if (!connected_ || awaited_ != Awaited::Nothing)
        return;
    if (setting_ < settings.size()) {
        Send("SET SELF " + settings[setting_++], Awaited::Setting);
    } else if (silence_) {
        silence_ = false;
        Send("CANCEL SELF", Awaited::Silence);
    } else if (!due_.empty()) {
        Send("SPEAK", Awaited::LeaveToSend);
    }
}

void DesktopVoice::Send(const QByteArray& line, Awaited answer) {
    awaited_ = answer;
    socket_.write(line + "\r\n");
}

// A text that was silenced meanwhile goes without its words: the service waits for one.
void DesktopVoice::Send_Text() {
    sending_ = {"<speak></speak>", {}};
    if (!silence_) {
        sending_ = std::move(due_.front());
        due_.pop_front();
    }
    Send(sending_.Marked + "\r\n.", Awaited::Id);
}

void DesktopVoice::Read() {
    read_ += socket_.readAll();
    for (qsizetype end = read_.indexOf('\n'); end >= 0 && connected_; end = read_.indexOf('\n')) {
        const QByteArray line = read_.left(end).trimmed();
        read_.remove(0, end + 1);
        Read_Line(line);
    }
}

// An answer, or a notice, is of lines "700-text" before a last one "700 text".
void DesktopVoice::Read_Line(const QByteArray& line) {
    if (line.size() > codeDigits && line[codeDigits] == '-') {
        before_.push_back(line.mid(codeDigits + 1));
        return;
    }
    const Lines before = std::exchange(before_, {});
    const int code = line.left(codeDigits).toInt();
    if (code >= markReached)
        Told(code, before);
    else
        Answered(code >= 200 && code < 300, before);
}

void DesktopVoice::Answered(bool well, const Lines& before) {
    const Awaited answered = std::exchange(awaited_, Awaited::Nothing);
    if (answered == Awaited::LeaveToSend && well)
        Send_Text();
    else if (answered == Awaited::LeaveToSend && !silence_)
        due_.pop_front();
    else if (answered == Awaited::Id && well && !silence_ && !before.empty())
        said_.push_back(
            {std::move(sending_.Marked), std::move(sending_.Words), before.front().toInt()});
    for (const auto& [code, lines] : std::exchange(early_, {}))
        Told(code, lines);
    Send_Next();
}

// The first line of a notice is the text's id; the third, of a mark, its name.
void DesktopVoice::Told(int code, const Lines& before) {
    if (before.empty())
        return;
    const int id = before[0].toInt();
    if (awaited_ == Awaited::Id && !Is_Said(id)) {
        early_.emplace_back(code, before);
        return;
    }
    if (code == textEnded || code == textCancelled)
        Ended(id);
    else if (code == markReached && before.size() > 2)
        Reached(id, before[2]);
}

bool DesktopVoice::Is_Said(int id) const {
    return std::any_of(said_.begin(), said_.end(),
                       [id](const Utterance& one) { return one.Id == id; });
}

void DesktopVoice::Reached(int id, const QByteArray& mark) {
    bool isNumber = false;
    const auto number = mark.toUInt(&isNumber);
    const auto text = std::find_if(said_.begin(), said_.end(),
                                   [id](const Utterance& one) { return one.Id == id; });
    if (!OnWord || !isNumber || text == said_.end() || number >= text->Words.size())
        return;
    const WordPlace word = text->Words[number];
    OnWord(word.At, word.Length);
}

void DesktopVoice::Ended(int id) {
    const auto gone = std::erase_if(said_, [id](const Utterance& one) { return one.Id == id; });
    if (gone > 0 && due_.empty() && !Is_Busy())
        Run(OnEnd);
}

} // namespace Tensarix
