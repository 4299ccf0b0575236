# Puts the topics of the help and their pictures into one HTML file. A script of CMake, so that it runs wherever the
# program is built, also for another system.
#
#   cmake "-DTOPICS=a.html;b.html" -DSTYLE=style.css -DPICTURES=FOLDER -DOUTPUT=Sontrel.HLP -P make_help_file.cmake
#
# A topic names a picture as src="pictures/NAME.png". The picture goes in as a data: URI, each byte written %XX: that
# is one replacement here, where base64 would be a walk over all bytes.

# dataUri(FILE RESULT)
function(dataUri file result)
    file(READ "${file}" bytes HEX)
    string(REGEX REPLACE "(..)" "%\\1" bytes "${bytes}")
    set(${result} "data:image/png,${bytes}" PARENT_SCOPE)
endfunction()

file(READ "${STYLE}" style)
set(page "<!DOCTYPE html>
<html lang=\"ro\">
<head>
<meta charset=\"utf-8\">
<title>Kelvo</title>
<style>
${style}</style>
</head>
<body>
")
foreach(topic IN LISTS TOPICS)
    file(READ "${topic}" text)
    string(APPEND page "${text}")
endforeach()
string(APPEND page "</body>
</html>
")

string(REGEX MATCHALL "src=\"pictures/[a-z0-9_]+\\.png\"" sources "${page}")
list(REMOVE_DUPLICATES sources)
foreach(source IN LISTS sources)
    string(REGEX REPLACE "src=\"pictures/(.*)\"" "\\1" name "${source}")
    if(NOT EXISTS "${PICTURES}/${name}")
        message(FATAL_ERROR "The help shows ${name}, and ${PICTURES} has no such picture.")
    endif()
    dataUri("${PICTURES}/${name}" uri)
    string(REPLACE "${source}" "src=\"${uri}\"" page "${page}")
endforeach()
file(WRITE "${OUTPUT}" "${page}")
