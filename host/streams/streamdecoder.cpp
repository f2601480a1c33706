#include "host/streams/streamdecoder.h"

#include "host/streams/decodedframe.h"
#include "host/streams/streamerrors.h"
#include "host/video/picturesize.h"
#include "host/video/streammailbox.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include <cmath>
#include <memory>
#include <new>
#include <thread>

using namespace std::chrono_literals;

namespace UICommonMdl
{
namespace
{

constexpr int kLongestDelay = 10000; ///< milliseconds
constexpr double kUsualRate = 25;
constexpr double kHighestRate = 1000;
constexpr int kHeavyPixels = 1920 * 1088;
constexpr int kHeavyThreads = 4;
constexpr int64_t kMostPixels = 16384LL * 16384;
constexpr AVRational kMicroseconds{1, 1000000};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(StreamDecoder)
};

QString undecodableText()
{
    return Texts::tr("What comes cannot be decoded.");
}

QString codecName(AVCodecID codec)
{
    switch (codec) {
    case AV_CODEC_ID_H264:
        return QStringLiteral("H.264");
    case AV_CODEC_ID_HEVC:
        return QStringLiteral("H.265");
    default:
        return QString::fromLatin1(avcodec_get_name(codec)).toUpper();
    }
}

std::chrono::milliseconds delayOf(const StreamRequest& request)
{
    return request.isFile
               ? 0ms
               : std::chrono::milliseconds(qBound(0, request.options.delayTime, kLongestDelay));
}

/// Files keep their own speed; a stream without a delay is shown as it comes.
PlayoutClock clockFor(const StreamRequest& request)
{
    if (request.isFile)
        return {0ms, 1s, 60s};
    const auto delay = delayOf(request);
    return {delay, 0ms, delay > 0ms ? 1s : 0s};
}

std::optional<PacketQueue::Clock::duration> longestWait(const StreamRequest& request)
{
    if (request.isFile)
        return std::nullopt;
    return delayOf(request) + 2s;
}

/// Threads of one picture each would hold pictures back: of a file only large ones get them, of a
/// live stream none. There several may work on one picture, whose size is not known yet.
void setThreads(AVCodecContext& codec, bool isFile)
{
    const bool isHeavy = !isFile || int64_t(codec.width) * codec.height > kHeavyPixels;
    codec.thread_count =
        isHeavy ? qBound(1, int(std::thread::hardware_concurrency()), kHeavyThreads) : 1;
    if (!isFile)
        codec.thread_type = FF_THREAD_SLICE;
}

} // namespace

StreamDecoder::StreamDecoder(const StreamRequest& request, StreamMailbox& mailbox)
    : m_request(request),
      m_mailbox(mailbox),
      m_watch(request.firstPictureLimit, request.silenceLimit, PacketQueue::Clock::now()),
      m_input(request, mailbox, m_watch),
      m_queue(longestWait(request)),
      m_clock(clockFor(request)),
      m_period(0)
{
}

QString StreamDecoder::play()
{
    QString reason = m_input.open();
    if (reason.isEmpty())
        reason = openCodec();
    if (!reason.isEmpty())
        return reason;
    std::thread reader([this]() { readPackets(); });
    const auto end = qScopeGuard([this, &reader]() {
        m_input.abort();
        m_queue.abort();
        reader.join();
    });
    return decodePackets();
}

QString StreamDecoder::openCodec()
{
    const AVStream& stream = m_input.video();
    const AVCodecParameters& parameters = *stream.codecpar;
    const AVCodec* const codec = avcodec_find_decoder(parameters.codec_id);
    if (!codec && parameters.codec_id == AV_CODEC_ID_NONE)
        return Texts::tr("The coding of the video is not known.");
    if (!codec)
        return Texts::tr("Video coded as %1 cannot be decoded.")
            .arg(codecName(parameters.codec_id));
    m_codec.reset(avcodec_alloc_context3(codec));
    if (!m_codec)
        return streamErrorText(AVERROR(ENOMEM));
    avcodec_parameters_to_context(m_codec.get(), &parameters);
    m_codec->pkt_timebase = stream.time_base;
    setThreads(*m_codec, m_request.isFile);
    m_codec->max_pixels = kMostPixels;
    const int opened = avcodec_open2(m_codec.get(), codec, nullptr);
    if (opened < 0)
        return streamErrorText(opened);
    m_mailbox.setCodec(codecName(parameters.codec_id));
    const double guess = m_input.picturesPerSecond();
    const double rate = guess > 0 && guess <= kHighestRate ? guess : kUsualRate;
    m_period = PlayoutClock::Duration(std::llround(1e6 / rate));
    // Only a file's is honoured: what is drawn over a camera's picture lies in it as it is sent.
    m_shape = {m_request.isFile ? turnOf(stream) : QTransform(), stream.sample_aspect_ratio};
    return {};
}

void StreamDecoder::readPackets()
{
    int result = 0;
    try {
        while (result >= 0)
            result = passOnPacket();
    } catch (const std::bad_alloc&) {
        result = AVERROR(ENOMEM);
    }
    m_queue.finish(result);
}

int StreamDecoder::passOnPacket()
{
    AvPacketPointer packet(av_packet_alloc());
    const int result = packet ? readOrRewind(packet) : AVERROR(ENOMEM);
    if (result >= 0)
        m_mailbox.countDropped(m_queue.push(std::move(packet)));
    return result;
}

int StreamDecoder::readOrRewind(AvPacketPointer& packet)
{
    const int result = m_input.read(*packet);
    if (result != AVERROR_EOF || !m_request.isFile)
        return result;
    packet.reset();
    return m_input.rewind();
}

QString StreamDecoder::decodePackets()
{
    while (!m_mailbox.isClosed()) {
        const std::optional<AvPacketPointer> packet = m_queue.pop();
        if (!packet)
            return endReason();
        m_lastPacket = PacketQueue::Clock::now();
        QString reason = *packet ? decode(packet->get()) : startOver();
        if (!reason.isEmpty())
            return reason;
    }
    return {};
}

/// A stream may send much of which nothing can be seen.
QString StreamDecoder::endReason() const
{
    const bool comes = PacketQueue::Clock::now() - m_lastPacket < m_request.silenceLimit / 2;
    return comes && m_queue.endCode() == AVERROR(ETIMEDOUT) ? undecodableText()
                                                            : streamErrorText(m_queue.endCode());
}

/// Damaged packets are passed over, as long as pictures come now and then.
QString StreamDecoder::decode(const AVPacket* packet)
{
    avcodec_send_packet(m_codec.get(), packet);
    while (!m_mailbox.isClosed()) {
        AvFramePointer frame(av_frame_alloc());
        if (!frame)
            return streamErrorText(AVERROR(ENOMEM));
        if (avcodec_receive_frame(m_codec.get(), frame.get()) < 0)
            break;
        QString reason = show(std::move(frame));
        if (!reason.isEmpty())
            return reason;
    }
    if (!m_request.isFile && PacketQueue::Clock::now() > m_watch.deadline())
        return undecodableText();
    return {};
}

/// Shows what the decoder still holds; the pictures that follow join on.
QString StreamDecoder::startOver()
{
    QString reason = decode(nullptr);
    if (!reason.isEmpty())
        return reason;
    if (m_decoded == 0 && !m_mailbox.isClosed())
        return Texts::tr("There is no picture in it that can be decoded.");
    avcodec_flush_buffers(m_codec.get());
    m_decoded = 0;
    m_clock.restartAt(m_due + m_period);
    return {};
}

QString StreamDecoder::show(AvFramePointer frame)
{
    const QSize size(frame->width, frame->height);
    if (!isPlausibleSize(size))
        return implausibleSizeText(size);
    ++m_decoded;
    m_due = m_clock.dueAt(mediaTime(*frame), PacketQueue::Clock::now());
    const bool goesOn = m_mailbox.waitUntil(m_due);
    m_watch.notePicture(PacketQueue::Clock::now());
    if (!goesOn)
        return {};
    if (isTooLate(m_due)) {
        m_mailbox.countDropped(1);
        return {};
    }
    const PictureShape shape = shapeOf(*frame);
    const auto decoded = std::make_shared<DecodedFrame>(std::move(frame), shape);
    const QImage picture = decoded->scaled(m_scaler, m_mailbox.targetFor(decoded->shownSize()));
    if (picture.isNull())
        return Texts::tr("Its pictures cannot be converted.");
    m_lastShown = PacketQueue::Clock::now();
    m_mailbox.postPicture(picture, decoded);
    return {};
}

/// What the container tells of a picture's points goes before what its coding does.
PictureShape StreamDecoder::shapeOf(const AVFrame& frame) const
{
    return {m_shape.turn, m_shape.points.num > 0 ? m_shape.points : frame.sample_aspect_ratio};
}

/// Where the stream tells no time, a picture follows the one before at the usual distance.
PlayoutClock::Duration StreamDecoder::mediaTime(const AVFrame& frame)
{
    if (frame.best_effort_timestamp == AV_NOPTS_VALUE)
        m_media += m_period;
    else
        m_media = PlayoutClock::Duration(
            av_rescale_q(frame.best_effort_timestamp, m_input.video().time_base, kMicroseconds));
    return m_media;
}

/// A decoder that cannot keep up shows some of its pictures only, but never none.
bool StreamDecoder::isTooLate(Time due) const
{
    const Time now = PacketQueue::Clock::now();
    return now - due > 100ms && now - m_lastShown < 250ms;
}

} // namespace UICommonMdl
