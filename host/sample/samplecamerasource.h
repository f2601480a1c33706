#pragma once

#include "host/video/picturesource.h"

#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <optional>

namespace UICommonMdl
{

class SampleStreet;

/**
 * A camera over a street, for work without a camera. It shows 25 pictures a
 * second, or one only: that whose number the environment variable KQ_SAMPLE_FREEZE holds.
 * A picture is painted when it is asked for, in the size in which it is shown.
 */
class KQHOST_EXPORT SampleCameraSource : public PictureSource
{
    Q_OBJECT

public:
    static constexpr int kWidth = 1280;
    static constexpr int kHeight = 720;
    static constexpr int kPicturesPerSecond = 25;

    SampleCameraSource();
    ~SampleCameraSource() override;

    /// Picture number @p frame in the camera's own size; the same number, the same picture.
    static QImage paintFrame(int frame);

    void start() override;
    void stop() override;
    QImage picture() const override;
    QSize pictureSize() const override;
    QImage fullPicture() const override;
    void setTargetSize(const QSize& size) override;

private:
    void nextPicture();
    QImage paint() const;

    QTimer m_timer;
    QElapsedTimer m_clock;
    const std::optional<int> m_frozen;
    bool m_started = false;
    int m_frame = 0;
    QSize m_size{kWidth, kHeight};
    mutable std::unique_ptr<SampleStreet> m_street; ///< in m_size; null until it is needed
    mutable QImage m_picture;                       ///< null while picture m_frame is not painted
};

} // namespace UICommonMdl
