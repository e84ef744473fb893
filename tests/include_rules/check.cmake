# Checks which room includes what:
#   cmake -DSOURCE_DIR=<folder> -P check.cmake
# A room is a folder, or a wing of one. The arrows of docs/architecture.md point down only, and
# toolkits and C libraries stay where they are wrapped. A room that is not there is not checked.
cmake_minimum_required(VERSION 3.25)

# The rooms from the bottom up, each with those whose headers it may include beside its own. Code in
# no room is an error: it would have no borders.
set(ROOMS)
function(room name)
  string(MAKE_C_IDENTIFIER ${name} id)
  list(APPEND ROOMS ${name})
  set(ROOMS ${ROOMS} PARENT_SCOPE)
  set(MAY_${id} ${name} ${ARGN} PARENT_SCOPE)
endfunction()

room(platform/text)
room(platform/files      platform/text)
room(platform/toolkit    platform/text platform/files)
room(platform/contract   platform/text platform/toolkit)
room(platform/qt/base     platform/text)
room(platform/qt/layout   platform/text platform/toolkit platform/qt/base)
room(platform/qt/controls platform/text platform/toolkit platform/qt/base platform/qt/layout)
room(platform/qt/windows  platform/text platform/toolkit platform/qt/base)
room(platform/qt/toolkit  platform/text platform/files platform/toolkit platform/qt/base
                          platform/qt/layout platform/qt/controls platform/qt/windows)
room(ppd                 platform/text platform/files platform/toolkit)
set(CORE platform/text platform/files platform/toolkit platform/contract ppd)
room(conflict            ${CORE})
room(controller          ${CORE} conflict)
room(plugin              ${CORE} controller)
room(resources           platform/text platform/files platform/toolkit ppd)
room(host/support        platform/text)
room(host/printer        platform/text platform/files ppd host/support)
room(host/server         platform/text platform/files ppd host/support host/printer)
room(host/document       platform/text platform/files host/support)
room(host/request        platform/text ppd host/support host/printer host/document)
room(host/ticket         platform/text platform/files host/support host/document host/request)
room(host/job            platform/text host/support host/printer host/server host/document host/request
                         host/ticket)
room(host/prepare        platform/text platform/files ppd host/support host/printer host/document
                         host/request)
room(host/preview        platform/text platform/files ppd host/support host/printer host/document
                         host/request host/prepare host/ticket)
room(host/panels         platform/text platform/files platform/contract ppd host/support
                         host/printer)
room(host/task           platform/text platform/files ppd host/support host/printer host/server
                         host/document host/request host/job host/prepare host/preview host/panels)
room(host/sheets         platform/text platform/qt/base ppd host/support host/printer host/document
                         host/request host/prepare host/panels host/preview host/task)
room(host/panes          platform/text platform/contract platform/qt/base platform/qt/toolkit ppd
                         host/printer host/panels host/task)
room(host/fields         platform/text platform/qt/base ppd host/printer host/request host/task
                         host/panes)
room(host/general        platform/text platform/qt/base ppd host/printer host/request host/task
                         host/panes host/fields)
room(host/notes          platform/text platform/qt/base host/task host/panes)
room(host/documents      platform/text platform/qt/base host/document host/request host/task
                         host/panes)
room(host/pages          platform/text platform/qt/base ppd host/printer host/document host/request
                         host/prepare host/task host/panes host/documents host/notes)
room(host/dialog         platform/text platform/files platform/toolkit platform/qt/base
                         platform/qt/toolkit ppd host/printer host/panels host/request host/task
                         host/sheets host/panes host/fields host/general host/notes host/documents
                         host/pages)
room(host/program        platform/text platform/files platform/qt/base platform/qt/toolkit
                         host/support
                         host/printer host/document host/request host/preview host/task host/dialog
                         host/notes)
room(host/impose/layout  platform/text host/support)
room(host/impose/pictures platform/text host/impose/layout)
room(host/impose/pages   platform/text host/impose/layout host/impose/pictures)
room(host/impose/program platform/text platform/files host/support host/impose/layout
                         host/impose/pictures host/impose/pages)
room(replay/commands     platform/text)
room(replay/screen       platform/text platform/qt/base platform/qt/layout replay/commands)
room(replay/session      ${CORE} platform/qt/base platform/qt/toolkit host/printer host/panels
                         replay/commands replay/screen)
room(replay/program      ${CORE} platform/qt/base platform/qt/toolkit host/panels replay/commands
                         replay/session)
room(replay/scripts)
room(tests               ${ROOMS})

# The libraries: how an include of one looks, and the files that may have it. Widgets are all of Qt
# but what its core offers to programs without a screen.
set(LIBRARIES Qt widgets pictures cups plist qpdf heif nlohmann gtest)
set(LOOK_Qt "<(Q[A-Z]|Qt|q[a-z]+\\.h)")
set(MAY_HAVE_Qt "^(platform/qt|host|replay|tests)/")
set(QT_CORE "QByteArray|QCoreApplication|QDir|QFile|QLocale|QMarginsF|QMimeDatabase|QObject|QProcess|QRegularExpression|QSizeF|QStandardPaths|QString|QStringList|QTimer|QUrl")
set(LOOK_widgets "${LOOK_Qt}")
set(QT_PICTURES "QColorSpace|QImage|QImageReader")
set(NOT_widgets "<(${QT_CORE}|${QT_PICTURES})>")
set(MAY_HAVE_widgets "^(platform/qt|host/(sheets|panes|fields|general|notes|documents|pages|dialog|program)|replay|tests)/|_(test|benchmark)\\.cpp$")
set(LOOK_pictures "<(${QT_PICTURES})>")
set(MAY_HAVE_pictures "^host/impose/(pictures|pages)/|${MAY_HAVE_widgets}")
set(LOOK_cups "<cups/")
set(MAY_HAVE_cups "^(ppd|conflict|controller|plugin|host|replay|tests)/|_(test|benchmark)\\.cpp$")
set(LOOK_plist "<plist/")
set(MAY_HAVE_plist "^platform/files/PropertyList\\.cpp$")
set(LOOK_qpdf "<qpdf/")
set(MAY_HAVE_qpdf "^host/impose/pages/Qpdf\\.h$")
set(LOOK_heif "<libheif/")
set(MAY_HAVE_heif "^host/impose/pictures/")
set(LOOK_nlohmann "<nlohmann/")
set(MAY_HAVE_nlohmann "^(host|replay|tests)/")
set(LOOK_gtest "<(gtest|gmock)/")
set(MAY_HAVE_gtest "^tests/|_(test|benchmark)\\.cpp$")

function(complain file line)
  message(NOTICE "${file}: must not have ${line}")
  set_property(GLOBAL APPEND PROPERTY complaints "${file}")
endfunction()

# The room that a path from the project's root lies in; empty for none.
function(room_of path result)
  set(${result} "" PARENT_SCOPE)
  foreach(room IN LISTS ROOMS)
    if(path MATCHES "^${room}/")
      set(${result} ${room} PARENT_SCOPE)
    endif()
  endforeach()
endfunction()

function(check_library_include file line)
  foreach(library IN LISTS LIBRARIES)
    if(line MATCHES "${LOOK_${library}}" AND NOT file MATCHES "${MAY_HAVE_${library}}"
       AND NOT (DEFINED NOT_${library} AND line MATCHES "${NOT_${library}}"))
      complain(${file} "${line}")
      return()
    endif()
  endforeach()
endfunction()

function(check_project_include file room line)
  if(NOT line MATCHES "\"([A-Za-z_/]+/)")
    return()
  endif()
  room_of(${CMAKE_MATCH_1} target)
  if(target STREQUAL "tests" AND file MATCHES "_(test|benchmark)\\.cpp$")
    return()  # tests use the fakes
  endif()
  string(MAKE_C_IDENTIFIER ${room} id)
  if(NOT target IN_LIST MAY_${id})
    complain(${file} "${line}")
  endif()
endfunction()

set(count 0)
set(FOLDERS ${ROOMS})
list(TRANSFORM FOLDERS REPLACE "/.*" "")
list(REMOVE_DUPLICATES FOLDERS)
foreach(folder IN LISTS FOLDERS)
  file(GLOB_RECURSE files RELATIVE ${SOURCE_DIR}
       ${SOURCE_DIR}/${folder}/*.h ${SOURCE_DIR}/${folder}/*.cpp)
  list(FILTER files EXCLUDE REGEX "^tests/include_rules/broken/")
  foreach(file IN LISTS files)
    math(EXPR count "${count} + 1")
    room_of(${file} room)
    if(room STREQUAL "")
      complain(${file} "a place outside the rooms")
      continue()
    endif()
    file(STRINGS ${SOURCE_DIR}/${file} lines REGEX "^ *# *include")
    foreach(line IN LISTS lines)
      check_library_include(${file} "${line}")
      check_project_include(${file} ${room} "${line}")
    endforeach()
  endforeach()
endforeach()

get_property(complaints GLOBAL PROPERTY complaints)
list(LENGTH complaints broken)
if(count EQUAL 0)
  message(FATAL_ERROR "${SOURCE_DIR} has no source files to check")
elseif(broken GREATER 0)
  message(FATAL_ERROR "${broken} includes break the rules")
endif()
message(NOTICE "${count} files keep the include rules")
