#pragma once

namespace KQGUI
{

/**
 * The one instance of T in the process. There is no general definition of Instance(): a copy of it
 * in each library would make an instance in each. The library that has T defines it for T.
 */
template<class T>
class KQSingleton
{
public:
    KQSingleton() = delete;

    static T& Instance();
};

} // namespace KQGUI
