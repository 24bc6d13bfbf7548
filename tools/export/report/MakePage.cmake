# Makes the report's page out of its parts and writes it as a C++ source.
#
#   cmake -DTEMPLATE=FILE -DSTYLES=FILES -DSCRIPTS=FILES -DLICENCES=FILES -DVERSION=TEXT -DOUTPUT=FILE -P MakePage.cmake
#
# The page's content security policy lets exactly these styles and scripts run: it names their SHA-256.

# Base64 of bytes given as hexadecimal digits.
function(base64_of result hex)
  set(digits "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  set(text "")
  while(NOT hex STREQUAL "")
    string(LENGTH "${hex}" left)
    string(SUBSTRING "${hex}0000" 0 6 group)
    math(EXPR group "0x${group}")
    foreach(shift 18 12 6 0)
      math(EXPR index "(${group} >> ${shift}) & 63")
      string(SUBSTRING "${digits}" ${index} 1 digit)
      string(APPEND text "${digit}")
    endforeach()
    if(left LESS_EQUAL 6)
      break()
    endif()
    string(SUBSTRING "${hex}" 6 -1 hex)
  endwhile()
  if(left EQUAL 2)
    string(REGEX REPLACE "..$" "==" text "${text}")
  elseif(left EQUAL 4)
    string(REGEX REPLACE ".$" "=" text "${text}")
  endif()
  set(${result} "${text}" PARENT_SCOPE)
endfunction()

# Sets `elements` to HTML elements of the given name that hold the files, and `hashes` to their policy's words.
function(embed elements hashes name)
  set(html "")
  set(words "")
  foreach(file IN LISTS ARGN)
    file(READ "${file}" text)
    string(REPLACE "\r\n" "\n" text "${text}") # as a browser reads it before it computes the hash
    string(REGEX REPLACE "\n?//# sourceMappingURL=[^\n]*" "" text "${text}")
    string(REGEX REPLACE "\n?/[*]# sourceMappingURL=[^\n]*" "" text "${text}")
    string(TOLOWER "${text}" lower)
    if(lower MATCHES "</${name}|<!--")
      message(FATAL_ERROR "${file} cannot stand inside an HTML page")
    endif()
    string(SHA256 hash "${text}")
    base64_of(hash "${hash}")
    string(APPEND words " 'sha256-${hash}'")
    string(APPEND html "<${name}>${text}</${name}>\n")
  endforeach()
  set(${elements} "${html}" PARENT_SCOPE)
  set(${hashes} "${words}" PARENT_SCOPE)
endfunction()

embed(styles style_hashes style ${STYLES})
embed(scripts script_hashes script ${SCRIPTS})
set(licences "")
foreach(file IN LISTS LICENCES)
  file(READ "${file}" text)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  get_filename_component(package "${file}" DIRECTORY)
  get_filename_component(package "${package}" NAME)
  string(APPEND licences "<h3>${package}</h3>\n<pre>${text}</pre>\n")
endforeach()

file(READ "${TEMPLATE}" page)
foreach(part IN ITEMS styles scripts licences style_hashes script_hashes VERSION)
  string(REPLACE "@${part}@" "${${part}}" page "${page}")
endforeach()

string(HEX "${page}" bytes)
string(REPEAT ".." 32 line)
string(REGEX REPLACE "(${line})" "\\1\n" bytes "${bytes}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
file(WRITE "${OUTPUT}" "// Made by MakePage.cmake.
#include \"tools/export/report/ReportPage.h\"

namespace LagomareTools {

namespace {

const unsigned char page[] = {
${bytes}
};

} // namespace

std::string_view reportPage() { return {reinterpret_cast<const char*>(page), sizeof(page)}; }

} // namespace LagomareTools
")
