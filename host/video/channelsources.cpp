#include "host/video/channelsources.h"

#include "host/sample/samplecamerasource.h"
#include "host/video/maskedaddress.h"
#include "host/video/nosignalsource.h"
#include "host/video/streamsource.h"

#include <QUrl>

#include <algorithm>

namespace UICommonMdl
{
namespace
{

const auto kSampleCamera = QStringLiteral("sample:");

const QStringList kStreamSchemes{QStringLiteral("rtsp"), QStringLiteral("rtsps")};

std::unique_ptr<PictureSource> streamSource(const QString& address, bool isFile,
                                            const StreamOptions& options)
{
    return std::make_unique<StreamSource>(StreamRequest{address, isFile, options});
}

bool isStreamAddress(const QString& address)
{
    const int scheme = address.indexOf(QStringLiteral("://"));
    // A line break would go into the request, a zero byte would end the address early.
    return kStreamSchemes.contains(address.left(qMax(0, scheme)), Qt::CaseInsensitive) &&
           std::all_of(address.begin(), address.end(), [](QChar c) { return c.isPrint(); });
}

std::unique_ptr<PictureSource> builtInSource(const QString& address, const StreamOptions& options)
{
    if (address.isEmpty())
        return std::make_unique<NoSignalSource>(ChannelSources::tr("The address is empty."));
    if (address.startsWith(kSampleCamera))
        return std::make_unique<SampleCameraSource>();
    const int scheme = address.indexOf(QStringLiteral("://"));
    if (scheme < 0)
        return streamSource(address, true, {});
    const QUrl url(address);
    if (url.isLocalFile())
        return streamSource(url.toLocalFile(), true, {});
    if (isStreamAddress(address))
        return streamSource(address, false, options);
    return std::make_unique<NoSignalSource>(
        ChannelSources::tr("Only rtsp and rtsps addresses and files can be played, not %1.")
            .arg(maskedAddress(address)));
}

} // namespace

ChannelSources::ChannelSources() : m_defaultAddress(kSampleCamera) {}

QString ChannelSources::address(const QString& channelId) const
{
    return m_addresses.value(channelId, m_defaultAddress);
}

void ChannelSources::setAddress(const QString& channelId, const QString& address)
{
    if (address.isEmpty())
        m_addresses.remove(channelId);
    else
        m_addresses.insert(channelId, address);
    emit sgnAddressesChanged();
}

void ChannelSources::setAddresses(const QMap<QString, QString>& addresses)
{
    m_addresses = addresses;
    emit sgnAddressesChanged();
}

void ChannelSources::setDefaultAddress(const QString& address)
{
    m_defaultAddress = address;
    emit sgnAddressesChanged();
}

void ChannelSources::addMaker(Maker maker)
{
    m_makers.push_back(std::move(maker));
}

std::unique_ptr<PictureSource> ChannelSources::makeSource(const QString& given,
                                                          const StreamOptions& options) const
{
    const QString address = given.trimmed();
    for (auto maker = m_makers.rbegin(); maker != m_makers.rend(); ++maker) {
        if (std::unique_ptr<PictureSource> source = (*maker)(address, options))
            return source;
    }
    return builtInSource(address, options);
}

std::unique_ptr<PictureSource> ChannelSources::makeForeignSource(const QString& address,
                                                                 const StreamOptions& options) const
{
    if (isStreamAddress(address.trimmed()))
        return makeSource(address, options);
    return std::make_unique<NoSignalSource>(
        tr("Only rtsp and rtsps addresses of a client can be played."));
}

} // namespace UICommonMdl

template<>
UICommonMdl::ChannelSources& KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance()
{
    // Never destroyed: surfaces may outlast the end of main().
    static auto* const sources = new UICommonMdl::ChannelSources;
    return *sources;
}
