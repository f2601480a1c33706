#include "host/video/nosignalsource.h"

namespace UICommonMdl
{

NoSignalSource::NoSignalSource(const QString& reason) : m_reason(reason) {}

void NoSignalSource::start()
{
    setState(PictureState::NoSignal, m_reason);
}

void NoSignalSource::stop()
{
    setState(PictureState::Ended);
}

QImage NoSignalSource::picture() const
{
    return {};
}

QSize NoSignalSource::pictureSize() const
{
    return {};
}

bool NoSignalSource::canTryAgain() const
{
    return false;
}

} // namespace UICommonMdl
