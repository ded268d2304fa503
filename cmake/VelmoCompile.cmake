# velmo_compile_settings(<target>)
#
# What every target of the project shares: language, visibility, Qt's code generators, warnings and sanitizers. All of
# it sits on the target, so that a project that takes this one in as a subdirectory is not touched by it.
function(velmo_compile_settings target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 20
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        AUTOMOC ON
        AUTOUIC ON
        AUTORCC ON)
    target_compile_definitions(${target} PRIVATE QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive-)
        if(VELMO_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE /WX)
        endif()
        return()
    endif()

    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wunused
        -Wdouble-promotion -Wformat=2)
    if(VELMO_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(VELMO_SANITIZE)
        # With its checks woven in, the compiler sees uninitialised values where there are none.
        target_compile_options(${target} PRIVATE -fsanitize=${VELMO_SANITIZE} -fno-omit-frame-pointer
            -fno-sanitize-recover=all -Wno-maybe-uninitialized)
        target_link_options(${target} PRIVATE -fsanitize=${VELMO_SANITIZE})
    endif()
endfunction()

# velmo_precompile(<target> <header>...)
#
# Has the headers that most widgets' sources include, and these, read once for the whole target if
# VELMO_PRECOMPILED_HEADERS asks for it.
function(velmo_precompile target)
    if(VELMO_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE
            <QApplication> <QBoxLayout> <QDateTime> <QDir> <QFile> <QHash> <QLabel> <QLineEdit> <QListWidget> <QMenu>
            <QMouseEvent> <QPainter> <QPointer> <QPushButton> <QSet> <QTimer> <QVariant> <QWindow>
            <algorithm> <functional> <memory> <optional>
            ${ARGN})
    endif()
endfunction()
