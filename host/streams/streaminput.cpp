#include "host/streams/streaminput.h"

#include "host/streams/streamerrors.h"
#include "host/streams/webserver.h"
#include "host/video/picturesize.h"
#include "host/video/picturewatch.h"
#include "host/video/streammailbox.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <mutex>

namespace UICommonMdl
{
namespace
{

constexpr std::chrono::milliseconds kGoodbye{500};
/// In bytes. The library would log in with the beginning of a longer one, until that is locked out.
constexpr int kLongestLogin = 127;
constexpr std::chrono::milliseconds kInquiry{2000};

/// The libraries' own messages hold addresses with their passwords.
void silenceLibraries()
{
    static std::once_flag once;
    std::call_once(once, []() { av_log_set_callback([](void*, int, const char*, va_list) {}); });
}

void setStreamOptions(AvOptions& options, const StreamOptions& wanted)
{
    options.set("rtsp_transport", "udp+tcp");
    if (!wanted.udp)
        options.set("rtsp_flags", "prefer_tcp");
    options.set("allowed_media_types", "video");
    // Each takes ports and a decoder, and a server may name thousands.
    options.set("max_streams", "16");
    options.set("protocol_whitelist", "rtsp,rtsps,rtp,srtp,tcp,udp,tls");
    options.set("analyzeduration", "2000000");
    options.set("buffer_size", "1048576");
}

QSize pictureSize(const AVStream& stream)
{
    return {stream.codecpar->width, stream.codecpar->height};
}

bool isVideo(const AVStream& stream)
{
    return stream.codecpar->codec_type == AVMEDIA_TYPE_VIDEO;
}

} // namespace

StreamInput::StreamInput(const StreamRequest& request, StreamMailbox& mailbox,
                         const PictureWatch& watch)
    : m_request(request),
      m_mailbox(mailbox),
      m_watch(watch),
      m_address(StreamAddress::parse(request.isFile ? QString() : request.address))
{
}

StreamInput::~StreamInput()
{
    m_isClosing = true;
    m_until = Clock::now() + kGoodbye;
    m_format.reset();
}

QString StreamInput::open()
{
    silenceLibraries();
    if (m_request.isFile && QFileInfo(m_request.address).isDir())
        return streamErrorText(AVERROR(EISDIR));
    const int connected = connectToServer();
    if (isLoginRefusal(connected))
        m_mailbox.setLoginRefused();
    if (connected < 0)
        return failureText(connected);
    // Before anything is decoded: room for an absurd size is never taken.
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        const QSize size = pictureSize(*m_format->streams[i]);
        if (isVideo(*m_format->streams[i]) && !size.isNull() && !isPlausibleSize(size))
            return implausibleSizeText(size);
    }
    return findVideo();
}

/// What listens there may be no camera at all: then one waits for it in vain.
QString StreamInput::failureText(int code)
{
    const bool isStrange = code == AVERROR_EOF || code == AVERROR_INVALIDDATA ||
                           code == AVERROR(EIO) || code == AVERROR(ETIMEDOUT) ||
                           code == AVERROR(ECONNRESET) || code == AVERROR(EPIPE);
    m_until = Clock::now() + kInquiry;
    if (!m_request.isFile && isStrange &&
        isWebServer(m_address.scheme + m_address.server, {&StreamInput::isInterrupted, this}))
        return QCoreApplication::translate("StreamInput",
                                           "A web server answers there, not a camera's RTSP.");
    return streamErrorText(code);
}

int StreamInput::openPipe()
{
    if (!NamedPipe::isAt(m_request.address))
        return 0;
    return m_pipe.open(m_request.address, [this]() { return isInterrupted(this) != 0; });
}

int StreamInput::connectToServer()
{
    AvOptions options;
    QByteArray address = m_address.encoded().toUtf8();
    if (m_request.isFile) {
        const int waited = openPipe();
        if (waited < 0)
            return waited;
        // Without it, "name:rest" would be taken for a protocol.
        address = m_pipe.isOpen() ? m_pipe.address() : "file:" + m_request.address.toUtf8();
        options.set("protocol_whitelist", m_pipe.isOpen() ? "pipe" : "file");
    } else {
        setStreamOptions(options, m_request.options);
    }
    if (m_address.encodedLogin().toUtf8().size() > kLongestLogin)
        return AVERROR(ENAMETOOLONG);
    AVFormatContext* format = avformat_alloc_context();
    if (!format)
        return AVERROR(ENOMEM);
    format->interrupt_callback = {&StreamInput::isInterrupted, this};
    m_opening = format;
    const int opened = avformat_open_input(&format, address.constData(), nullptr, options.get());
    m_opening = nullptr;
    m_format.reset(format);
    if (m_isAstray)
        return kSentElsewhere;
    return opened < 0 ? explained(opened) : 0;
}

QString StreamInput::findVideo()
{
    const int found = needsAnalysis() ? avformat_find_stream_info(m_format.get(), nullptr) : 0;
    if (found < 0)
        return streamErrorText(explained(found));
    m_video = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    if (m_video < 0 || (video().disposition & AV_DISPOSITION_ATTACHED_PIC))
        return streamErrorText(AVERROR_STREAM_NOT_FOUND);
    const bool isOpen = m_request.isFile || !pictureSize(video()).isNull();
    if (isOpen && !isPlausibleSize(pictureSize(video())))
        return implausibleSizeText(pictureSize(video()));
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        if (int(i) != m_video)
            m_format->streams[i]->discard = AVDISCARD_ALL;
    }
    return {};
}

/// The description of a live stream names the coding. What its pictures tell besides would take
/// some of them, which a slow camera sends in half a minute.
bool StreamInput::needsAnalysis() const
{
    const auto** const begin = const_cast<const AVStream**>(m_format->streams);
    return m_request.isFile ||
           std::none_of(begin, begin + m_format->nb_streams, [](const AVStream* stream) {
               return isVideo(*stream) && stream->codecpar->codec_id != AV_CODEC_ID_NONE;
           });
}

int StreamInput::read(AVPacket& packet)
{
    while (!m_aborted) {
        const int result = av_read_frame(m_format.get(), &packet);
        if (result < 0)
            return explained(result);
        // What the parser still held of a stream that stopped comes as if it had just been sent.
        if (isOverdue()) {
            av_packet_unref(&packet);
            return AVERROR(ETIMEDOUT);
        }
        if (packet.stream_index == m_video)
            return 0;
        av_packet_unref(&packet);
    }
    return AVERROR_EXIT;
}

int StreamInput::rewind()
{
    if (m_pipe.isOpen())
        return AVERROR_EOF;
    const AVStream& stream = video();
    const int64_t first = stream.start_time == AV_NOPTS_VALUE ? 0 : stream.start_time;
    const int result = av_seek_frame(m_format.get(), m_video, first, AVSEEK_FLAG_BACKWARD);
    if (result >= 0)
        return 0;
    // Bare streams of pictures have no times to seek by.
    return av_seek_frame(m_format.get(), m_video, 0, AVSEEK_FLAG_BYTE);
}

void StreamInput::abort()
{
    m_aborted = true;
}

const AVStream& StreamInput::video() const
{
    return *m_format->streams[m_video];
}

double StreamInput::picturesPerSecond() const
{
    AVStream* const stream = m_format->streams[m_video];
    return av_q2d(av_guess_frame_rate(m_format.get(), stream, nullptr));
}

int StreamInput::isInterrupted(void* input)
{
    auto& self = *static_cast<StreamInput*>(input);
    self.m_isAstray = self.m_isAstray || self.isSentElsewhere();
    const bool given = !self.m_isClosing && (self.m_aborted || self.m_mailbox.isClosed());
    return given || self.isOverdue() || self.m_isAstray ? 1 : 0;
}

/// The library follows by itself, and asks before the first byte that it sends there.
bool StreamInput::isSentElsewhere() const
{
    if (!m_opening || !m_opening->url || m_address.login.isEmpty())
        return false;
    const QString address = QString::fromUtf8(m_opening->url);
    return !m_address.mayPassOnTo(StreamAddress::parse(address));
}

bool StreamInput::isOverdue() const
{
    if (m_until)
        return Clock::now() > *m_until;
    return !m_request.isFile && Clock::now() > m_watch.deadline();
}

/// A call that was given up because of silence comes back with one of several codes.
int StreamInput::explained(int code) const
{
    return isOverdue() ? AVERROR(ETIMEDOUT) : code;
}

} // namespace UICommonMdl
