# Sources of the window library, relative to this folder.
set(TARVEL_UI_SOURCES
  canvas/pic.cpp
  canvas/picture_cache.cpp
  canvas/picture_place.cpp
  canvas/skin_fonts.cpp
  canvas/surface_cover.cpp
  canvas/surface_damage.cpp
  canvas/surface_geometry.cpp
  canvas/surface_painter.cpp
  canvas/text_cache.cpp
  canvas/video_stage.cpp
  dialogs/frm_instructions.cpp
  dialogs/frm_pic.cpp
  dialogs/png_view.cpp
)
# Headers with Q_OBJECT, for the meta-object compiler.
set(TARVEL_UI_HEADERS
  canvas/pic.h
  canvas/surface_cover.h
  canvas/video_stage.h
  dialogs/frm_instructions.h
  dialogs/frm_pic.h
  dialogs/png_view.h
)
