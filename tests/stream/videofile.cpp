#include "tests/stream/videofile.h"

#include "host/streams/avpointers.h"

extern "C" {
#include <libavutil/display.h>
}

using namespace UICommonMdl;

namespace
{

struct Color {
    uint8_t y, u, v;
};

AVPixelFormat formatOf(const QByteArray& codec)
{
    return codec == "mjpeg" ? AV_PIX_FMT_YUVJ420P : AV_PIX_FMT_YUV420P;
}

void paint(AVFrame& frame, const Color& left, const Color& right)
{
    for (int y = 0; y < frame.height; ++y) {
        for (int x = 0; x < frame.width; ++x) {
            const Color& color = 2 * x < frame.width ? left : right;
            frame.data[0][y * frame.linesize[0] + x] = color.y;
            frame.data[1][y / 2 * frame.linesize[1] + x / 2] = color.u;
            frame.data[2][y / 2 * frame.linesize[2] + x / 2] = color.v;
        }
    }
}

AvFramePointer newFrame(const QSize& size, AVPixelFormat format)
{
    AvFramePointer frame(av_frame_alloc());
    frame->width = size.width();
    frame->height = size.height();
    frame->format = format;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    if (format == AV_PIX_FMT_YUVJ420P)
        paint(*frame, {76, 85, 255}, {29, 255, 107});
    else
        paint(*frame, {81, 90, 240}, {41, 240, 110});
    return frame;
}

AvCodecPointer openEncoder(const VideoFile& file, bool globalHeader)
{
    const AVCodec* const codec = avcodec_find_encoder_by_name(file.codec.constData());
    if (!codec)
        return nullptr;
    AvCodecPointer encoder(avcodec_alloc_context3(codec));
    encoder->width = file.size.width();
    encoder->height = file.size.height();
    encoder->pix_fmt = formatOf(file.codec);
    encoder->time_base = {1, file.picturesPerSecond};
    encoder->framerate = {file.picturesPerSecond, 1};
    encoder->sample_aspect_ratio = {file.points.width(), file.points.height()};
    encoder->bit_rate = 1000000;
    encoder->flags |= globalHeader ? AV_CODEC_FLAG_GLOBAL_HEADER : 0;
    AvOptions options;
    options.set("preset", "ultrafast");
    options.set("x265-params", "log-level=none");
    return avcodec_open2(encoder.get(), codec, options.get()) < 0 ? nullptr : std::move(encoder);
}

/// Sends a picture, null for the end, and writes what comes out.
bool encode(AVCodecContext& encoder, AVFormatContext& output, const AVFrame* frame)
{
    if (avcodec_send_frame(&encoder, frame) < 0)
        return false;
    for (;;) {
        const AvPacketPointer packet(av_packet_alloc());
        if (avcodec_receive_packet(&encoder, packet.get()) < 0)
            return true;
        packet->duration = 1;
        av_packet_rescale_ts(packet.get(), encoder.time_base, output.streams[0]->time_base);
        if (av_interleaved_write_frame(&output, packet.get()) < 0)
            return false;
    }
}

bool writeAll(const VideoFile& file, AVFormatContext& output)
{
    const AvCodecPointer encoder = openEncoder(file, output.oformat->flags & AVFMT_GLOBALHEADER);
    AVStream* const stream = avformat_new_stream(&output, nullptr);
    const AvFramePointer frame = newFrame(file.size, formatOf(file.codec));
    if (!encoder || !stream || !frame)
        return false;
    avcodec_parameters_from_context(stream->codecpar, encoder.get());
    stream->time_base = encoder->time_base;
    stream->avg_frame_rate = encoder->framerate;
    stream->sample_aspect_ratio = encoder->sample_aspect_ratio;
    auto* const matrix = reinterpret_cast<int32_t*>(
        av_stream_new_side_data(stream, AV_PKT_DATA_DISPLAYMATRIX, 9 * sizeof(int32_t)));
    av_display_rotation_set(matrix, file.turn);
    if (avformat_write_header(&output, nullptr) < 0)
        return false;
    for (int i = 0; i < file.pictures; ++i) {
        frame->pts = i;
        if (!encode(*encoder, output, frame.get()))
            return false;
    }
    return encode(*encoder, output, nullptr) && av_write_trailer(&output) == 0;
}

} // namespace

bool VideoFile::write(const QString& path) const
{
    av_log_set_level(AV_LOG_QUIET);
    const QByteArray name = path.toUtf8();
    AVFormatContext* output = nullptr;
    if (avformat_alloc_output_context2(&output, nullptr, nullptr, name.constData()) < 0)
        return false;
    const bool written =
        avio_open(&output->pb, name.constData(), AVIO_FLAG_WRITE) >= 0 && writeAll(*this, *output);
    avio_closep(&output->pb);
    avformat_free_context(output);
    return written;
}
