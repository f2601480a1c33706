#include <QApplication>
#include <QGridLayout>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QWidget>

namespace
{

/// Shows a picture file and ends the program once it has done so.
class Picture : public QWidget
{
public:
    explicit Picture(const QString& file) : m_pixmap(file) {}

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter(this).drawPixmap(rect(), m_pixmap);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }

private:
    QPixmap m_pixmap;
};

} // namespace

/// A window with as many widgets as the first argument says and the picture file that the second
/// one names.
int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    QWidget window;
    QGridLayout layout(&window);
    layout.addWidget(new Picture(QApplication::arguments().value(2)), 0, 0, 1, 10);
    const int count = QApplication::arguments().value(1).toInt();
    for (int i = 0; i < count; ++i)
        layout.addWidget(new QPushButton(QString::number(i)), 1 + i / 10, i % 10);
    window.resize(1180, 800);
    window.show();
    return QApplication::exec();
}
