# Each interface has these two lines; their words stand here and in frame.h.
s|^( *static constexpr const char\* interfaceName = .*;)$|\1  ///< The name that queryInterface() knows it by.|
s|^ *~[A-Za-z]*\(\) = default;$||
# What a link of a page leads to has another place in the site, or none.
s~\]\((\.\./)*include/KyDataStructure/([a-z]*)\.h\)~](\2_8h.html)~g
s~\]\(([^()]*\.md)#[^()]*\)~](\1)~g
s~\[([^][]*)\]\([./]*(examples|abi/[a-z_.]*|src/[a-z_/.]*)\)~\1~g
