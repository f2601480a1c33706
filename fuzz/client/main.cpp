// Does at random with rules windows what clients may do, and says whether all held. Exit status 1:
// something did not; what it was, and how to see it again, is on the standard error stream.
#include "fuzz/client/randomclient.h"
#include "workbench/display.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

int main(int argc, char* argv[])
{
    if (!Display::isThere())
        Display::useOffscreen();
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOptions({{QStringLiteral("steps"), QStringLiteral("how many things are done"),
                        QStringLiteral("number"), QStringLiteral("300")},
                       {QStringLiteral("seed"), QStringLiteral("of the client's choices"),
                        QStringLiteral("number"), QStringLiteral("1")},
                       {QStringLiteral("verbose"), QStringLiteral("names each step")}});
    parser.process(application);

    RandomClient client(parser.value(QStringLiteral("seed")).toUInt());
    client.setVerbose(parser.isSet(QStringLiteral("verbose")));
    const bool held = client.play(parser.value(QStringLiteral("steps")).toInt());
    QTextStream(held ? stdout : stderr) << client.report() << '\n';
    return held ? 0 : 1;
}
