# The editor's try window (plays the level with the game's view and rules) and its analysis panel.
target_sources(quorbit_editor PRIVATE ${CMAKE_CURRENT_LIST_DIR}/try_window.cpp ${CMAKE_CURRENT_LIST_DIR}/try_window.h)
target_sources(quorbit_editor PRIVATE ${CMAKE_CURRENT_LIST_DIR}/try_window_input.cpp)
target_sources(quorbit_editor PRIVATE ${CMAKE_CURRENT_LIST_DIR}/analysis_panel.cpp ${CMAKE_CURRENT_LIST_DIR}/analysis_panel.h)
