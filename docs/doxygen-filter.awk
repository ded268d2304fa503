# What the documentation is built from, line for line: a public header without the declarations that only override the
# toolkit's (those with a comment of their own stay), and as a documented file, so that what lies outside of classes is
# looked at too.
/^ *\/\/\// { commented = 1; print; next }
/^#pragma once/ { print "/// @file"; next }
/ override;/ && !commented { print ""; next }
{ commented = 0; print }
