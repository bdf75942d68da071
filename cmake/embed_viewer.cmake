# Writes OUTPUT, a C++ file with the viewer's files of the folder INPUT as strings. A string is in pieces, since some
# compilers limit the length of a literal.
set(page page.html)
set(style viewer.css)
set(scripts shapes.js painter.js finder.js lists.js controls.js viewer.js)

function(literal file result)
  file(READ ${INPUT}/${file} text)
  string(LENGTH "${text}" length)
  set(pieces "")
  set(begin 0)
  while(begin LESS length)
    string(SUBSTRING "${text}" ${begin} 8000 piece)
    string(APPEND pieces "R\"viewer(${piece})viewer\"\n")
    math(EXPR begin "${begin} + 8000")
  endwhile()
  set(${result} "${pieces}" PARENT_SCOPE)
endfunction()

literal(${page} page_text)
literal(${style} style_text)
set(script_texts "")
foreach(script ${scripts})
  literal(${script} text)
  string(APPEND script_texts "std::string_view(${text}),\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"tool/draw/viewer/files.h\"

namespace kestrin::tool::draw {
const std::string_view kViewerPage = ${page_text};
const std::string_view kViewerStyle = ${style_text};
const std::array<std::string_view, 6> kViewerScripts{${script_texts}};
}  // namespace kestrin::tool::draw
")
