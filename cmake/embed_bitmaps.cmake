# Turns the bitmaps of a resource script into a source file that holds them.
#   cmake -DSCRIPT=bitmaps.rc -DOUTPUT=bitmap_resources.cpp -P embed_bitmaps.cmake
get_filename_component(folder ${SCRIPT} DIRECTORY)
file(STRINGS ${SCRIPT} lines REGEX "^[0-9]+ BITMAP \"[^\"]+\"$")
set(arrays "")
set(cases "")
foreach(line IN LISTS lines)
  string(REGEX MATCH "^([0-9]+) BITMAP \"([^\"]+)\"$" found "${line}")
  set(number ${CMAKE_MATCH_1})
  file(READ ${folder}/${CMAKE_MATCH_2} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "constexpr std::uint8_t kBitmap${number}[] = {${bytes}};\n")
  string(APPEND cases "    case ${number}: return kBitmap${number};\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"connect/bitmap_resources.h\"

namespace tamrikon {
namespace {

${arrays}
}  // namespace

std::span<const std::uint8_t> bitmapResource(int number) {
  switch (number) {
${cases}    default: return {};
  }
}

}  // namespace tamrikon
")
