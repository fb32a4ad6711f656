# Puts next to the portable program what it needs of this system: Qt's plugins, all libraries but
# those of the C library, fonts for its languages, and the terms that these come under.
set(root $ENV{DESTDIR}${CMAKE_INSTALL_PREFIX})

foreach(plugin IN ITEMS platforms/libqxcb.so platforms/libqoffscreen.so imageformats
    platforminputcontexts)
  get_filename_component(folder plugins/${plugin} DIRECTORY)
  file(INSTALL ${qt_plugins}/${plugin} DESTINATION ${root}/${folder})
endforeach()
file(GLOB_RECURSE plugins ${root}/plugins/*.so)
file(GET_RUNTIME_DEPENDENCIES
  EXECUTABLES ${root}/TarnTestTool ${root}/TarnTestPattern
  MODULES ${plugins}
  RESOLVED_DEPENDENCIES_VAR libraries
  UNRESOLVED_DEPENDENCIES_VAR missing
  PRE_EXCLUDE_REGEXES "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv)\\.so")
if(missing)
  message(FATAL_ERROR "There is no ${missing}")
endif()
set(fonts /usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc
  /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf
  /usr/share/fonts/truetype/dejavu/DejaVuSans-Bold.ttf)
file(INSTALL ${libraries} DESTINATION ${root}/lib FOLLOW_SYMLINK_CHAIN)
file(INSTALL ${fonts} DESTINATION ${root}/fonts)

foreach(file IN LISTS libraries fonts)
  get_filename_component(real ${file} REALPATH)
  execute_process(COMMAND dpkg-query -S */${real} OUTPUT_VARIABLE owner ERROR_QUIET)
  string(REGEX REPLACE ":.*" "" owner "${owner}")
  if(owner)
    file(INSTALL /usr/share/doc/${owner}/copyright DESTINATION ${root}/licences RENAME ${owner})
  endif()
endforeach()
