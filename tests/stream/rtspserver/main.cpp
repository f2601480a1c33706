// An RTSP server on the loopback address that serves colour bars at /bars until it is killed.
// It can be slow, and fall silent. It prints the port that it listens on.

#include <gst/gst.h>
#include <gst/rtsp-server/rtsp-server.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

namespace
{

/// What the program was asked for: "--name value", or "--name" alone.
class Settings
{
public:
    Settings(int argc, char** argv)
    {
        std::string name;
        for (const std::string argument : std::vector<char*>(argv + 1, argv + argc)) {
            if (argument.rfind("--", 0) == 0)
                m_values[name = argument.substr(2)];
            else
                m_values[name] = argument;
        }
    }
    bool has(const char* name) const { return m_values.count(name) > 0; }
    std::string text(const char* name, const char* otherwise = "") const
    {
        return has(name) ? m_values.at(name) : otherwise;
    }

private:
    std::map<std::string, std::string> m_values;
};

std::string coding(const std::string& codec)
{
    if (codec == "jpeg")
        return "jpegenc ! rtpjpegpay name=pay0 pt=26";
    return "x264enc tune=zerolatency speed-preset=ultrafast key-int-max=10 ! "
           "rtph264pay name=pay0 pt=96 config-interval=1";
}

/// Lets the media's first pictures pass; the stream does not end.
void sendFew(GstRTSPMediaFactory*, GstRTSPMedia* media, gpointer pictures)
{
    const auto countDown = [](GstPad*, GstPadProbeInfo*, gpointer left) {
        return --*static_cast<int*>(left) >= 0 ? GST_PAD_PROBE_OK : GST_PAD_PROBE_DROP;
    };
    GstElement* const bin = gst_rtsp_media_get_element(media);
    GstElement* const payer = gst_bin_get_by_name(GST_BIN(bin), "pay0");
    GstPad* const pad = gst_element_get_static_pad(payer, "sink");
    gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_BUFFER, countDown, new int(GPOINTER_TO_INT(pictures)),
                      [](gpointer left) { delete static_cast<int*>(left); });
    gst_object_unref(pad);
    gst_object_unref(payer);
    gst_object_unref(bin);
}

GstRTSPMediaFactory* makeBars(const Settings& settings)
{
    const std::string pipeline =
        "( videotestsrc is-live=true pattern=smpte ! "
        "video/x-raw,format=I420,framerate=" +
        settings.text("rate", "25/1") + ",pixel-aspect-ratio=" + settings.text("aspect", "1/1") +
        ",width=" + settings.text("width", "320") + ",height=" + settings.text("height", "240") +
        " ! " + coding(settings.text("codec")) + " )";
    GstRTSPMediaFactory* const factory = gst_rtsp_media_factory_new();
    gst_rtsp_media_factory_set_launch(factory, pipeline.c_str());
    gst_rtsp_media_factory_set_shared(factory, TRUE);
    if (settings.has("pictures"))
        g_signal_connect(factory, "media-configure", G_CALLBACK(sendFew),
                         GINT_TO_POINTER(std::stoi(settings.text("pictures"))));
    if (settings.has("udp-only"))
        gst_rtsp_media_factory_set_protocols(factory, GST_RTSP_LOWER_TRANS_UDP);
    return factory;
}

void allowViewers(GstRTSPMediaFactory* factory)
{
    gst_rtsp_media_factory_add_role(factory, "viewer", GST_RTSP_PERM_MEDIA_FACTORY_ACCESS,
                                    G_TYPE_BOOLEAN, TRUE, GST_RTSP_PERM_MEDIA_FACTORY_CONSTRUCT,
                                    G_TYPE_BOOLEAN, TRUE, nullptr);
}

void askForPassword(GstRTSPServer* server, GstRTSPMediaFactory* factory, const Settings& settings)
{
    GstRTSPAuth* const auth = gst_rtsp_auth_new();
    gst_rtsp_auth_set_supported_methods(auth, GST_RTSP_AUTH_DIGEST);
    GstRTSPToken* const token =
        gst_rtsp_token_new(GST_RTSP_TOKEN_MEDIA_FACTORY_ROLE, G_TYPE_STRING, "viewer", nullptr);
    gst_rtsp_auth_add_digest(auth, settings.text("user").c_str(), settings.text("password").c_str(),
                             token);
    gst_rtsp_token_unref(token);
    allowViewers(factory);
    gst_rtsp_server_set_auth(server, auth);
    g_object_unref(auth);
}

/// False when the file holds no certificate with its key.
bool encrypt(GstRTSPServer* server, const std::string& file)
{
    GTlsCertificate* const certificate = g_tls_certificate_new_from_file(file.c_str(), nullptr);
    if (!certificate)
        return false;
    GstRTSPAuth* const auth = gst_rtsp_auth_new();
    gst_rtsp_auth_set_tls_certificate(auth, certificate);
    // Nobody has to tell who he is.
    GstRTSPToken* const token =
        gst_rtsp_token_new(GST_RTSP_TOKEN_MEDIA_FACTORY_ROLE, G_TYPE_STRING, "viewer", nullptr);
    gst_rtsp_auth_set_default_token(auth, token);
    gst_rtsp_token_unref(token);
    gst_rtsp_server_set_auth(server, auth);
    g_object_unref(auth);
    g_object_unref(certificate);
    return true;
}

/// The port of a running server; 0 or below when it cannot be had.
int serve(const Settings& settings)
{
    GstRTSPServer* const server = gst_rtsp_server_new();
    gst_rtsp_server_set_address(server, "127.0.0.1");
    gst_rtsp_server_set_service(server, settings.text("port", "0").c_str());
    GstRTSPMediaFactory* const factory = makeBars(settings);
    if (settings.has("user"))
        askForPassword(server, factory, settings);
    if (settings.has("certificate")) {
        allowViewers(factory);
        if (!encrypt(server, settings.text("certificate")))
            return 0;
    }
    GstRTSPMountPoints* const mounts = gst_rtsp_server_get_mount_points(server);
    gst_rtsp_mount_points_add_factory(mounts, "/bars", factory);
    g_object_unref(mounts);
    return gst_rtsp_server_attach(server, nullptr) ? gst_rtsp_server_get_bound_port(server) : 0;
}

} // namespace

int main(int argc, char** argv)
{
    gst_init(nullptr, nullptr);
    const int port = serve(Settings(argc, argv));
    if (port <= 0)
        return EXIT_FAILURE;
    std::printf("%d\n", port);
    std::fflush(stdout);
    g_main_loop_run(g_main_loop_new(nullptr, FALSE));
}
