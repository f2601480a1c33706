#include "tools/rulesctl/command.h"

#include <algorithm>

const std::vector<const Command*>& Commands::all()
{
    static const std::vector<const Command*> commands{
        &check(), &convert(), &lint(), &diff(), &apply(), &render(), &report(),
    };
    return commands;
}

const Command* Commands::find(const QString& name)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const Command* command) {
        return name == QLatin1String(command->name);
    });
    return found == all().end() ? nullptr : *found;
}

const std::vector<OptionSpec>& Commands::commonOptions()
{
    using Takes = OptionSpec::Takes;
    static const std::vector<OptionSpec> options{
        {"template", '\0', Takes::Word, "F", "the template; needed"},
        {"algorithm", '\0', Takes::Word, "N:CODE",
         "number and text of the algorithm that the rules are for; without it the number is 0"},
        {"language", '\0', Takes::Word, "NAME",
         "language of the words that operators read: de, zh_CN or en, in place of English"},
        {"help", 'h', Takes::Nothing, "", "show this"},
    };
    return options;
}

std::vector<OptionSpec> Commands::optionsOf(const Command& command)
{
    std::vector<OptionSpec> options = command.options;
    options.insert(options.end(), commonOptions().begin(), commonOptions().end());
    return options;
}
