# cmake -DCHECK=<CheckLayering.cmake> -DWORK=<folder> -P CheckLayeringTest.cmake
#
# Plants one fault at a time in a small library and sees that the check names it.
cmake_minimum_required(VERSION 3.22)
include("${CMAKE_CURRENT_LIST_DIR}/../support/Refusal.cmake")

# planted(<what> <expected message, empty: passes> [<file> <text>]...)
function(planted what expected)
    file(REMOVE_RECURSE "${WORK}")
    file(WRITE "${WORK}/table.md"
        "# Layers\n| Folder | May include |\n| --- | --- |\n| `foundation` | |\n| `frame` | `foundation` |\n")
    file(WRITE "${WORK}/public.txt" "foundation/Label.h\nframe/Window.h\n")
    file(WRITE "${WORK}/base.txt" "Version.h\n")
    file(WRITE "${WORK}/library/foundation/Label.h" "#pragma once\n#include \"Version.h\"\n#include <QLabel>\n")
    file(WRITE "${WORK}/library/foundation/Label.cpp" "#include \"foundation/Label.h\"\n#include <windows.h>\n")
    file(WRITE "${WORK}/library/foundation/Sheets.h" "#pragma once\n#include <QString>\n")
    file(WRITE "${WORK}/library/frame/Window.h" "#pragma once\n#include \"foundation/Label.h\"\n")
    file(WRITE "${WORK}/library/frame/Window.cpp"
        "#include \"frame/Window.h\"\n#include \"foundation/Sheets.h\"\n#include \"ui_Window.h\"\n")
    file(WRITE "${WORK}/users/Page.cpp" "#include <Label.h>\n#include \"frame/Window.h\"\n")
    while(ARGN)
        list(POP_FRONT ARGN file text)
        file(WRITE "${WORK}/${file}" "${text}\n")
    endwhile()

    check_answer("${what}" "${expected}" ${CMAKE_COMMAND} "-DLIBRARY=${WORK}/library" "-DTABLE=${WORK}/table.md"
        "-DPUBLIC_HEADERS=${WORK}/public.txt" "-DBASE_HEADERS=${WORK}/base.txt" "-DUSERS=${WORK}/users" -P "${CHECK}")
endfunction()

planted("a sound library" "")
planted("an edge that is not in the table" "foundation may not include frame/Window.h"
    library/foundation/Label.cpp "#include \"frame/Window.h\"")
planted("the same with blanks and angle brackets" "foundation may not include frame/Window.h"
    library/foundation/Label.cpp "  #  include <frame/Window.h>")
planted("a folder without a row" "the folder is not in the table"
    library/docking/Dock.cpp "#include \"foundation/Label.h\"")
planted("a bare name" "Window.h is not a path from the library's root"
    library/foundation/Label.cpp "#include <Window.h>")
planted("a path that leaves the folder" "not a path from the library's root"
    library/foundation/Label.cpp "#include \"../frame/Window.h\"")
planted("headers in a circle" "in a circle"
    library/foundation/Sheets.h "#include \"foundation/Label.h\""
    library/foundation/Label.h "#include \"foundation/Sheets.h\"")
planted("a public header on a private one" "includes the private foundation/Sheets.h"
    library/foundation/Label.h "#include \"foundation/Sheets.h\"")
planted("a public header on the system" "a public header includes Windows.h"
    library/frame/Window.h "#include <Windows.h>")
planted("a public header on the toolkit's private parts" "a public header includes private/qwidget_p.h"
    library/frame/Window.h "#include <private/qwidget_p.h>")
planted("a public header with conditional parts" "has conditional parts"
    library/frame/Window.h "#ifdef _WIN32\n#endif")
planted("an application on a private header" "Page.cpp: includes the private Sheets.h"
    users/Page.cpp "#include <Sheets.h>")
planted("no table" "has no table of folders" table.md "# Layers")
