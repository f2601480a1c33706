// Changes documents as documents: bytes changed at random are hardly ever JSON any more.
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <algorithm>
#include <random>
#include <string>

using kql::Json::Value;

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t capacity);

namespace
{

using Random = std::minstd_rand;

int below(Random& random, std::size_t limit)
{
    return static_cast<int>(random() % std::max<std::size_t>(limit, 1));
}

void collect(Value& value, std::vector<Value*>& values)
{
    values.push_back(&value);
    for (int i = 0; i < value.size(); ++i)
        collect(value.isArray() ? value[i] : value.memberValue(i), values);
}

Value oddValue(Random& random)
{
    static const Value kOdd[] = {{},
                                 true,
                                 false,
                                 0,
                                 1,
                                 -1,
                                 2,
                                 4,
                                 8192,
                                 100000,
                                 2147483647,
                                 qint64(4294967296),
                                 -1e300,
                                 0.5,
                                 "",
                                 "0",
                                 "-1",
                                 "%1%s%n",
                                 "<b>x</b>",
                                 "A[].B[]",
                                 "[]",
                                 ".",
                                 "1e999",
                                 "global",
                                 "rules",
                                 "Calibration",
                                 Value(kql::Json::ValueType::Array),
                                 Value(kql::Json::ValueType::Object)};
    return kOdd[below(random, std::size(kOdd))];
}

void dropPart(Value& value, Random& random)
{
    if (value.isObject() && !value.empty()) {
        value.removeMember(std::string(value.memberName(below(random, value.size()))));
        return;
    }
    Value kept(kql::Json::ValueType::Array);
    const int dropped = below(random, value.size());
    for (int i = 0; i < value.size(); ++i) {
        if (i != dropped)
            kept.append(value[i]);
    }
    if (value.isArray())
        value = kept;
}

void repeatPart(Value& value, Random& random)
{
    if (!value.isArray() || value.empty())
        return;
    const Value part = value[below(random, value.size())];
    for (int count = 1 + below(random, 12); count > 0; --count)
        value.append(part);
}

void change(Value& document, Random& random)
{
    std::vector<Value*> values;
    collect(document, values);
    Value& value = *values[below(random, values.size())];
    switch (below(random, 5)) {
    case 0:
        value = oddValue(random);
        break;
    case 1:
        value = Value(*values[below(random, values.size())]);
        break;
    case 2:
        dropPart(value, random);
        break;
    case 3:
        repeatPart(value, random);
        break;
    default:
        if (value.isNumeric())
            value = qint64(value.asInt()) + below(random, 9) - 4;
        else if (value.isString())
            value = values[below(random, values.size())]->asString();
        break;
    }
}

std::string changed(std::string_view input, Random& random)
{
    auto parts = Fuzz::split(input, Fuzz::kSeparator);
    const auto chosen = static_cast<std::size_t>(below(random, parts.size()));
    Value document;
    if (!kql::Json::Reader().parse(parts[chosen], document))
        return {};
    for (int count = 1 + below(random, 4); count > 0; --count)
        change(document, random);
    const std::string text = document.toStyledString();
    parts[chosen] = text;
    std::string output(parts.front());
    for (std::size_t i = 1; i < parts.size(); ++i)
        output.append(Fuzz::kSeparator).append(parts[i]);
    return output;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t capacity, unsigned int seed)
{
    Random random(seed);
    if (random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, capacity);
    const std::string output = changed({reinterpret_cast<const char*>(data), size}, random);
    if (output.empty() || output.size() > capacity)
        return LLVMFuzzerMutate(data, size, capacity);
    std::copy(output.begin(), output.end(), data);
    return output.size();
}
