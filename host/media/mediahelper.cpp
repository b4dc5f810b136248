#include "host/media/mediahelper.h"

#include "host/media/protocol/mediafailure.h"

#include <QCoreApplication>
#include <QDebug>
#include <QStandardPaths>

namespace {

constexpr int PollMs = 50;
constexpr int FarewellMs = 500;
constexpr int StartAgainMs = 10000;

struct HelperTexts
{
    Q_DECLARE_TR_FUNCTIONS(MediaHelper)
};

} // namespace

QString MediaSetup::installedProgram()
{
    return QStandardPaths::findExecutable(QStringLiteral("quarvo-media"),
                                          {QCoreApplication::applicationDirPath()});
}

QString MediaSetup::missingMessage()
{
    return HelperTexts::tr(
        "The program quarvo-media is not beside this one: there are no thumbnails and no "
        "metadata.");
}

MediaHelper::MediaHelper(const MediaSetup &setup)
    : m_setup(setup)
{
}

MediaHelper::~MediaHelper()
{
    stop();
}

void MediaHelper::stop()
{
    if (!m_process)
        return;
    m_process->closeWriteChannel(); // which ends a helper at rest
    if (!m_process->waitForFinished(FarewellMs)) {
        m_process->kill();
        m_process->waitForFinished(FarewellMs);
    }
    m_process.reset();
}

bool MediaHelper::start(const std::atomic<bool> &abandoned, QString *error)
{
    if (m_process && m_process->state() == QProcess::Running)
        return true;
    m_process.reset();
    if (!m_startError.isEmpty() && !m_sinceStartError.hasExpired(StartAgainMs)) {
        *error = m_startError;
        return false;
    }
    m_startError.clear();
    m_clock.start();
    m_readingMs = 0;
    if (m_setup.program.isEmpty()) {
        m_startError = MediaSetup::missingMessage();
    } else {
        m_process = std::make_unique<QProcess>();
        m_process->setStandardErrorFile(QProcess::nullDevice());
        m_process->start(m_setup.program, {QString::number(m_setup.memoryBytes)});
        MediaFrame::Kind kind = MediaFrame::Failure;
        QByteArray payload;
        if (!m_process->waitForStarted(m_setup.workMs)) {
            m_startError = HelperTexts::tr("The program %1 cannot be started: %2")
                               .arg(m_setup.program, m_process->errorString());
        } else if (receive(abandoned, &kind, &payload) != Frame || kind != MediaFrame::Hello
                   || !MediaFrame::isHello(payload)) {
            m_startError = HelperTexts::tr("The program %1 does not answer as it should.")
                               .arg(m_setup.program);
        }
    }
    if (m_startError.isEmpty())
        return true;
    if (m_process) {
        m_process->kill();
        stop();
    }
    if (abandoned) {
        m_startError.clear(); // it had no time to answer
    } else {
        m_sinceStartError.start();
        qWarning().noquote() << m_startError;
    }
    *error = m_startError;
    return false;
}

MediaHelper::Outcome MediaHelper::kill(Outcome outcome, MediaAnswer *answer, const QString &reason)
{
    answer->error = reason;
    m_process->kill();
    m_process->waitForFinished(FarewellMs);
    m_process.reset();
    return outcome;
}

MediaHelper::Outcome MediaHelper::ask(const MediaRequest &request, QIODevice &file,
                                      const std::atomic<bool> &abandoned, MediaAnswer *answer)
{
    if (!start(abandoned, &answer->error))
        return abandoned ? Abandoned : Unavailable;
    m_clock.start();
    m_readingMs = 0;
    m_readBytes = 0;
    send(MediaFrame::Request, request.encode());
    while (true) {
        MediaFrame::Kind kind = MediaFrame::Failure;
        QByteArray payload;
        switch (receive(abandoned, &kind, &payload)) {
        case Frame:
            break;
        case Unwanted:
            return kill(Abandoned, answer, QString());
        case Late:
            return kill(Killed, answer, HelperTexts::tr("it took too long"));
        case Lost:
            return kill(Killed, answer, HelperTexts::tr("the decoder crashed"));
        }
        bool valid = true;
        switch (kind) {
        case MediaFrame::Read:
            valid = serveRead(payload, file);
            break;
        case MediaFrame::Picture:
            valid = answer->decodePicture(payload);
            break;
        case MediaFrame::Metadata:
            valid = answer->decodeMetadata(payload);
            break;
        case MediaFrame::Failure:
            answer->error = MediaFailure::sentence(MediaFrame::decodeText(payload));
            break;
        default:
            valid = false;
        }
        if (!valid) {
            *answer = MediaAnswer();
            return kill(Killed, answer, HelperTexts::tr("the decoder lost its way"));
        }
        if (kind != MediaFrame::Read)
            return Answered;
    }
}

void MediaHelper::send(MediaFrame::Kind kind, const QByteArray &payload)
{
    // Only into a buffer: it flows while the answer is awaited, so no end blocks the other.
    m_process->write(MediaFrame::header(kind, payload.size()));
    m_process->write(payload);
}

bool MediaHelper::serveRead(const QByteArray &payload, QIODevice &file)
{
    MediaFrame::Range range;
    if (!MediaFrame::decode(payload, &range))
        return false;
    m_readBytes += range.length;
    if (m_readBytes > m_setup.readBytes)
        return false;
    QElapsedTimer reading;
    reading.start();
    QByteArray bytes;
    bool failed = !file.seek(range.offset);
    while (!failed && bytes.size() < range.length) {
        const QByteArray part = file.read(range.length - bytes.size());
        if (part.isEmpty()) {
            // the end, unless there should be more
            failed = range.offset + bytes.size() < file.size();
            break;
        }
        bytes += part;
    }
    m_readingMs += reading.elapsed();
    if (failed)
        send(MediaFrame::ReadFailed, MediaFrame::encodeText(file.errorString()));
    else
        send(MediaFrame::Bytes, bytes);
    return true;
}

bool MediaHelper::waitForBytes(qint64 count, const std::atomic<bool> &abandoned, Received *why)
{
    while (m_process->bytesAvailable() < count) {
        const qint64 elapsed = m_clock.elapsed();
        if (abandoned) {
            *why = Unwanted;
            return false;
        }
        if (elapsed - m_readingMs > m_setup.workMs || elapsed > m_setup.totalMs) {
            *why = Late;
            return false;
        }
        if (!m_process->waitForReadyRead(PollMs) && m_process->state() != QProcess::Running
            && m_process->bytesAvailable() < count) {
            *why = Lost;
            return false;
        }
    }
    return true;
}

MediaHelper::Received MediaHelper::receive(const std::atomic<bool> &abandoned,
                                           MediaFrame::Kind *kind, QByteArray *payload)
{
    Received why = Lost;
    if (!waitForBytes(MediaFrame::HeaderBytes, abandoned, &why))
        return why;
    MediaFrame::Header header;
    if (!MediaFrame::parseHeader(m_process->read(MediaFrame::HeaderBytes).constData(), &header))
        return Lost;
    if (!waitForBytes(header.length, abandoned, &why))
        return why;
    *kind = header.kind;
    *payload = m_process->read(header.length);
    return Frame;
}
