#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

#include <memory>

namespace UICommonMdl
{

struct AvDeleter {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
    void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};

using AvCodecPointer = std::unique_ptr<AVCodecContext, AvDeleter>;
using AvFormatPointer = std::unique_ptr<AVFormatContext, AvDeleter>;
using AvFramePointer = std::unique_ptr<AVFrame, AvDeleter>;
using AvPacketPointer = std::unique_ptr<AVPacket, AvDeleter>;
using AvScalerPointer = std::unique_ptr<SwsContext, AvDeleter>;

/// Options handed to the libraries, which take out those that they know.
class AvOptions
{
public:
    AvOptions() = default;
    ~AvOptions() { av_dict_free(&m_options); }
    AvOptions(const AvOptions&) = delete;
    AvOptions& operator=(const AvOptions&) = delete;

    void set(const char* name, const char* value) { av_dict_set(&m_options, name, value, 0); }
    AVDictionary** get() { return &m_options; }

private:
    AVDictionary* m_options = nullptr;
};

} // namespace UICommonMdl
