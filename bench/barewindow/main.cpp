#include <QApplication>
#include <QGridLayout>
#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace
{

/// Shows a picture and ends the program once it has done so.
class Picture : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QImage image(640, 360, QImage::Format_RGB32);
        image.fill(Qt::darkGray);
        QPainter(this).drawImage(rect(), image);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

} // namespace

/// A window with a picture and as many other widgets as the argument says.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    QGridLayout layout(&window);
    layout.addWidget(new Picture, 0, 0, 1, 10);
    const int count = QApplication::arguments().value(1).toInt();
    for (int i = 0; i < count; ++i)
        layout.addWidget(new QPushButton(QString::number(i)), 1 + i / 10, i % 10);
    window.resize(1180, 800);
    window.show();
    return QApplication::exec();
}
