# What the documentation is built from, line for line: a public header without the declarations that only override the
# toolkit's (those with a comment of their own stay), and as a documented file, so that what lies outside of classes is
# looked at too. A setting for forms is what its setter says.
/^ *\/\/\// { commented = 1; print; next }
/^#pragma once/ { print "/// @file"; next }
/^ *Q_PROPERTY/ && !commented && match($0, /WRITE [A-Za-z_]+/) {
    print $0 " ///< For forms; see " substr($0, RSTART + 6, RLENGTH - 6) "()."
    next
}
/ override;/ && !commented { print ""; next }
{ commented = 0; print }
