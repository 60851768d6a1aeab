# Each interface has these two lines; their words stand here and in frame.h.
s|^( *static constexpr const char\* interfaceName = .*;)$|\1  ///< The name that queryInterface() knows it by.|
s|^ *~[A-Za-z]*\(\) = default;$||

# A header has another place in the site, and a page no anchors. What is not in the site keeps
# its words and loses its link.
s~\]\((\.\./)*include/KyDataStructure/([a-z]*)\.h\)~](\2_8h.html)~g
s~\]\(([^()]*\.md)#[^()]*\)~](\1)~g
s~\]\(([^()]*\.(md|html|svg))\)~]\x01(\1)~g
s~\[([^][]+)\]\([^(): ]*[./][^(): ]*\)~\1~g
s~\]\x01\(~](~g
