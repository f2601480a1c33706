// Does at random with rules windows what clients may do, and says whether all held. Exit status 1:
// something did not; what it was, and how to see it again, is on the standard error stream.
#include "fuzz/client/randomclient.h"
#include "fuzz/longrun.h"

int main(int argc, char* argv[])
{
    LongRun run(argc, argv);
    run.parser.addOptions({{QStringLiteral("steps"), QStringLiteral("how many things are done"),
                            QStringLiteral("number"), QStringLiteral("300")},
                           {QStringLiteral("verbose"), QStringLiteral("names each step")}});
    run.parser.process(*qApp);

    RandomClient client(run.seed());
    client.setVerbose(run.parser.isSet(QStringLiteral("verbose")));
    const bool held = client.play(run.number("steps"));
    return LongRun::end(held, client.report());
}
