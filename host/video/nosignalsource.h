#pragma once

#include "host/video/picturesource.h"

namespace UICommonMdl
{

/// Stands for a source that cannot be played, and says why.
class KQHOST_EXPORT NoSignalSource : public PictureSource
{
    Q_OBJECT

public:
    explicit NoSignalSource(const QString& reason) : m_reason(reason) {}

    void start() override { setState(PictureState::NoSignal, m_reason); }
    void stop() override { setState(PictureState::Ended); }
    QImage picture() const override { return {}; }
    QSize pictureSize() const override { return {}; }
    bool canTryAgain() const override { return false; }

private:
    QString m_reason;
};

} // namespace UICommonMdl
