#pragma once

#include <string>

/// The argument as it has to stand in the command line of a Windows program for the C runtime to read it back.
inline std::wstring quotedArgument(const std::wstring &argument)
{
    // Backslashes count as such unless they lead to a quotation mark: then two stand for one.
    std::wstring quoted(1, L'"');
    size_t backslashes = 0;
    for (const wchar_t character : argument) {
        if (character == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        quoted += character;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}
