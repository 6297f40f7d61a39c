room(core KIND SHARED HEADER zenvora/core/Core.h)
room(Util KIND PART PART_OF LumidexUtil INCLUDES zenvora/core/Core.h USES core)
room(LumidexUtil KIND SHARED USES core PARTS Util)
set(ACCEPTED ON)
