# cmake -DDOXYGEN=<program> -DDOXYFILE=<file> -DWORK=<folder> -P FindsGaps.cmake
#
# Leaves out one comment at a time in a small header and sees that the documentation is refused.
cmake_minimum_required(VERSION 3.22)
include("${CMAKE_CURRENT_LIST_DIR}/../tests/support/Refusal.cmake")

# planted(<what> <expected message, empty: passes> <text>)
function(planted what expected text)
    file(REMOVE_RECURSE "${WORK}")
    file(WRITE "${WORK}/Planted.h" "#pragma once\n\n${text}\n")
    file(READ "${DOXYFILE}" settings)
    file(WRITE "${WORK}/Doxyfile" "${settings}
INPUT = \"${WORK}/Planted.h\"
OUTPUT_DIRECTORY = \"${WORK}\"
USE_MDFILE_AS_MAINPAGE =
")
    check_answer("${what}" "${expected}" "${DOXYGEN}" Doxyfile)
endfunction()

planted("a whole header" "" "/// A.\nclass A\n{\npublic:\n    /// B.\n    void b();\n    void c() override;\n};")
planted("a class" "Compound A is not documented" "class A\n{\npublic:\n    /// B.\n    void b();\n};")
planted("a member" "b\\(\\).*is not documented" "/// A.\nclass A\n{\npublic:\n    void b();\n};")
planted("a member behind one" "c\\(\\).*is not documented"
    "/// A.\nclass A\n{\npublic:\n    /// B.\n    void b();\n    void c();\n};")
planted("a protected member" "b\\(\\).*is not documented" "/// A.\nclass A\n{\nprotected:\n    void b();\n};")
planted("a constant" "B.*is not documented" "/// A.\nclass A\n{\npublic:\n    static constexpr int B = 1;\n};")
planted("a function outside of classes" "a\\(\\).*is not documented" "VELMO_GUI_EXPORT int a();")
planted("an enumeration" "A.*is not documented" "enum A {\n    B ///< B.\n};")
