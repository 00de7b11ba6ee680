#include "output/PrinterStatus.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include "output/Sink.h"

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int AnswerTimeoutMs = 500;
// More than that is no answer but noise.
constexpr qsizetype LongestAnswer = 4096;

// While it lives a descriptor does not wait, and a serial line hands over single bytes and does not send them back.
class Conversation {
public:
    explicit Conversation(int descriptor)
        : descriptor_(descriptor),
          flags_(::fcntl(descriptor, F_GETFL)),
          isTerminal_(::tcgetattr(descriptor, &terminal_) == 0) {
        ::fcntl(descriptor_, F_SETFL, flags_ | O_NONBLOCK);
        if (!isTerminal_) return;
        termios raw = terminal_;
        raw.c_iflag &= ~static_cast<tcflag_t>(ISTRIP | INLCR | IGNCR | ICRNL);
        raw.c_lflag &= ~static_cast<tcflag_t>(ECHO | ECHONL | ICANON | ISIG | IEXTEN);
        ::tcsetattr(descriptor_, TCSANOW, &raw);
    }
    Conversation(const Conversation&) = delete;
    Conversation& operator=(const Conversation&) = delete;
    ~Conversation() {
        if (isTerminal_) ::tcsetattr(descriptor_, TCSANOW, &terminal_);
        ::fcntl(descriptor_, F_SETFL, flags_);
    }

    // What `find` makes of the bytes that come behind the question.
    template <typename Find>
    auto Ask(const QByteArray& question, const Find& find) const -> decltype(find(QByteArray())) {
        QByteArray answer;
        for (int i = 0; i < 64 && Read(answer); ++i) continue;  // what was said before
        if (::write(descriptor_, question.constData(), static_cast<size_t>(question.size())) != question.size())
            return {};
        QElapsedTimer timer;
        timer.start();
        answer.clear();
        while (!timer.hasExpired(AnswerTimeoutMs) && answer.size() <= LongestAnswer) {
            pollfd waiting{.fd = descriptor_, .events = POLLIN, .revents = 0};
            const int left = std::max(0, AnswerTimeoutMs - static_cast<int>(timer.elapsed()));
            if (::poll(&waiting, 1, left) == 0) return {};
            if (!Read(answer) && errno != EAGAIN && errno != EINTR) return {};
            if (auto found = find(answer)) return found;
        }
        return {};
    }

private:
    // False when nothing came: errno then says why, 0 that the printer has hung up.
    bool Read(QByteArray& answer) const {
        char bytes[256];
        errno = 0;
        const ssize_t count = ::read(descriptor_, bytes, sizeof bytes);
        if (count > 0) answer.append(bytes, count);
        return count > 0;
    }

    int descriptor_;
    int flags_;
    termios terminal_{};
    bool isTerminal_;
};

// Epson: DLE EOT n, one byte back, whose bits 0, 1, 4 and 7 tell it from everything else.

std::optional<uchar> EpsonStatus(const QByteArray& answer) {
    for (const char byte : answer)
        if ((byte & 0x93) == 0x12) return static_cast<uchar>(byte);
    return std::nullopt;
}

PrinterState EpsonState(const Conversation& printer) {
    const auto status = printer.Ask("\x10\x04\x01"_ba, EpsonStatus);
    const auto cause = status ? printer.Ask("\x10\x04\x02"_ba, EpsonStatus) : std::nullopt;
    const auto paper = cause ? printer.Ask("\x10\x04\x04"_ba, EpsonStatus) : std::nullopt;
    if (!paper) return PrinterState::Silent;
    if (*cause & 0x04) return PrinterState::CoverOpen;
    if (*cause & 0x20 || *paper & 0x60) return PrinterState::NoPaper;
    if (*status & 0x08 || *cause & 0x40) return PrinterState::Offline;
    return PrinterState::Ready;
}

// Star: ESC ACK SOH, the automatic status back: a byte that tells the length, one for the model, then the state of the
// printer, of its errors (two bytes) and of its paper. Bits 0, 4 and 7 of the state are never set.

constexpr qsizetype StarShortest = 7;
constexpr qsizetype StarState = 2;
constexpr qsizetype StarErrors = 3;
constexpr qsizetype StarFaults = 4;
constexpr qsizetype StarPaper = 5;

bool IsStarStatus(const QByteArray& bytes) {
    const uchar head = static_cast<uchar>(bytes[0]);
    const qsizetype length = (head >> 1 & 0x07) | (head >> 2 & 0x08);
    if ((head & 0x91) != 0x01 || length < StarShortest || bytes.size() < length) return false;
    for (qsizetype i = StarState; i <= StarPaper; ++i)
        if (bytes[i] & 0x91) return false;
    return true;
}

std::optional<QByteArray> StarStatus(const QByteArray& answer) {
    for (qsizetype at = 0; at + StarShortest <= answer.size(); ++at)
        if (const QByteArray bytes = answer.mid(at); IsStarStatus(bytes)) return bytes;
    return std::nullopt;
}

PrinterState StarStateOf(const Conversation& printer) {
    const auto status = printer.Ask("\x1B\x06\x01"_ba, StarStatus);
    if (!status) return PrinterState::Silent;
    const QByteArray& bytes = *status;
    if (bytes[StarState] & 0x20) return PrinterState::CoverOpen;
    if (bytes[StarPaper] & 0x08) return PrinterState::NoPaper;
    if (bytes[StarState] & 0x08 || bytes[StarErrors] & 0x6C || bytes[StarFaults] & 0x48) return PrinterState::Offline;
    return PrinterState::Ready;
}

}  // namespace

PrinterCodes CodesOf(PrinterFamily family) {
    if (family == PrinterFamily::Star)
        return {.drawer = "\x07"_ba, .cutter = "\x1B\x64\x33"_ba, .bold = "\x1B\x45"_ba, .plain = "\x1B\x46"_ba};
    return {.drawer = "\x1B\x70\x00\x3C\x78"_ba,
            .cutter = "\x1D\x56\x42\x00"_ba,
            .bold = "\x1B\x45\x01"_ba,
            .plain = "\x1B\x45\x00"_ba};
}

PrinterState StateOf(const Sink& printer, PrinterFamily family) {
    if (printer.AskedDescriptor() < 0) return PrinterState::Ready;
    const Conversation conversation(printer.AskedDescriptor());
    return family == PrinterFamily::Star ? StarStateOf(conversation) : EpsonState(conversation);
}

}  // namespace output
