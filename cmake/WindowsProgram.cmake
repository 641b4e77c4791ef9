# What an executable of Windows carries besides its code: icon, version, manifest, and what Qt is to do
# there.

set(windowsFolder ${PROJECT_SOURCE_DIR}/packaging/windows)
set(windowsIcon ${PROJECT_BINARY_DIR}/tarvel.ico)
set(iconPictures)
foreach(size 16 32 48 64 128 256)
  list(APPEND iconPictures ${PROJECT_SOURCE_DIR}/assets/tarvel-${size}.png)
endforeach()
add_custom_command(OUTPUT ${windowsIcon}
                   COMMAND ${windowsFolder}/icon ${windowsIcon} ${iconPictures}
                   DEPENDS ${windowsFolder}/icon ${iconPictures} VERBATIM)
# One target makes the icon of all programs.
add_custom_target(windows_icon DEPENDS ${windowsIcon})

# Gives the program TARGET its resources. DESCRIPTION is its line in the file's properties.
function(tarvel_windows_program program description)
  set(icon ${windowsIcon})
  set(manifest ${PROJECT_BINARY_DIR}/${program}.manifest)
  set(resources ${PROJECT_BINARY_DIR}/${program}.rc)
  file(STRINGS ${PROJECT_SOURCE_DIR}/LICENSE copyright REGEX "^Copyright")
  configure_file(${windowsFolder}/program.manifest.in ${manifest} @ONLY)
  configure_file(${windowsFolder}/program.rc.in ${resources} @ONLY)
  set_source_files_properties(${resources} PROPERTIES OBJECT_DEPENDS "${windowsIcon};${manifest}")
  target_sources(${program} PRIVATE ${resources})
  add_dependencies(${program} windows_icon)
  qt_add_resources(${program} windows_${program} PREFIX /qt/etc BASE ${windowsFolder}
                   FILES ${windowsFolder}/qt.conf)
endfunction()
