# The folders of the program and the folders each may include from. A folder uses only the ones
# listed after it, which all lie below it: the game's data at the bottom, the drawing routines,
# the cycle's routines and the level set-up above them, play on top of the rules, the analysis of
# levels and their solutions above play, the text form of levels, then the shells.
set(QUORBIT_LAYERS core draw sim level play analysis leveltext audio ui app cli)
set(QUORBIT_USES_core "")
set(QUORBIT_USES_draw core)
set(QUORBIT_USES_sim draw core)
set(QUORBIT_USES_level draw core)
set(QUORBIT_USES_play sim level draw core)
set(QUORBIT_USES_analysis play level sim draw core)
set(QUORBIT_USES_leveltext level draw core)
set(QUORBIT_USES_audio core)
set(QUORBIT_USES_ui play level sim draw core audio)
set(QUORBIT_USES_app ui leveltext analysis audio play level sim draw core)
set(QUORBIT_USES_cli leveltext analysis play level sim draw core)
