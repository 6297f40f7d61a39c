file(WRITE "${WORK}/source/core/Clock_unix.cpp" "#error the clock of this system\n")
file(WRITE "${WORK}/source/core/Clock_windows.cpp" "#error the clock of another system\n")
room(core KIND SHARED SYSTEM Clock)
set(UNBUILT "the clock of this system")
