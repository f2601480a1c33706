#pragma once

#include "host/api/kqhostexport.h"
#include "host/api/kqsingleton.h"
#include "host/video/streamrequest.h"

#include <QMap>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace UICommonMdl
{

class PictureSource;

/**
 * Which address gives a channel's picture, and which source plays an address. An address is
 * "sample:" (the sample camera), the path of a picture or video file, an RTSP address, or what an
 * added maker plays; blanks around it do not count.
 * A channel without an address of its own has the default one, at first the sample camera.
 */
class KQHOST_EXPORT ChannelSources : public QObject
{
    Q_OBJECT

public:
    /// Makes the source that plays an address; null when it is not one that it plays.
    using Maker = std::function<std::unique_ptr<PictureSource>(const QString& address,
                                                               const StreamOptions& options)>;

    ChannelSources();

    QString address(const QString& channelId) const;
    /// An empty @p address gives the channel the default one again.
    void setAddress(const QString& channelId, const QString& address);
    /// In place of those of all channels.
    void setAddresses(const QMap<QString, QString>& addresses);
    void setDefaultAddress(const QString& address);

    /// Makers are asked before the built-in sources, the one added last first.
    void addMaker(Maker maker);
    /// Never null: an address that nothing plays gives a source that says so.
    std::unique_ptr<PictureSource> makeSource(const QString& address,
                                              const StreamOptions& options = {}) const;
    /// As makeSource(), for an address that came in a message: anything but an rtsp or rtsps
    /// address is refused, and no maker sees it.
    std::unique_ptr<PictureSource> makeForeignSource(const QString& address,
                                                     const StreamOptions& options) const;

signals:
    /// Surfaces that show a channel with another address now open it anew.
    void sgnAddressesChanged();

private:
    QMap<QString, QString> m_addresses;
    QString m_defaultAddress;
    std::vector<Maker> m_makers;
};

} // namespace UICommonMdl

template<>
KQHOST_EXPORT UICommonMdl::ChannelSources&
KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance();
