# Which folder may know which, itself included. check_includes.cmake holds the includes to it, and CMakeLists.txt makes
# one library of each subsystem that links what its folders may know, and nothing else.

# From below to above.
set(LV_SUBSYSTEMS platform foundation games catalogs video launch gamespy launcher foundry wizard)
set(ROOMS_platform starting toolkit)
set(ROOMS_games engines fitting trees)
set(ROOMS_catalogs editors)
set(ROOMS_launcher start window menu)
set(ROOMS_foundry tables document reading writing half_life fonts editor)

set(MAY_platform platform)
set(MAY_platform/starting platform/starting platform)
set(MAY_platform/toolkit)
set(MAY_foundation foundation platform)
set(MAY_games games games/engines games/fitting games/trees foundation platform)
set(MAY_games/engines games games/engines games/trees foundation platform)
set(MAY_games/fitting games games/engines games/fitting foundation platform)
set(MAY_games/trees ${MAY_games})
set(MAY_catalogs catalogs ${MAY_games})
set(MAY_catalogs/editors catalogs/editors ${MAY_catalogs})
set(MAY_video video ${MAY_games})
set(MAY_launch launch video ${MAY_catalogs})
set(MAY_gamespy gamespy catalogs/editors ${MAY_launch})
set(MAY_launcher launcher launcher/start launcher/window launcher/menu ${MAY_gamespy})
set(MAY_launcher/start ${MAY_launcher})
set(MAY_launcher/window ${MAY_launcher})
set(MAY_launcher/menu ${MAY_launcher})
set(BELOW_FOUNDRY launcher launcher/start launcher/window launcher/menu launch video catalogs/editors
    ${MAY_catalogs})
set(MAY_foundry/tables foundry/tables foundation)
set(MAY_foundry/document foundry/document ${MAY_foundry/tables} platform)
set(MAY_foundry/reading foundry/reading foundry/document foundry/tables ${BELOW_FOUNDRY})
set(MAY_foundry/writing foundry/writing foundry/document foundry/tables ${BELOW_FOUNDRY})
set(MAY_foundry/half_life foundry/half_life ${MAY_foundry/writing} foundry/reading)
set(MAY_foundry/fonts foundry/fonts foundry/tables ${MAY_catalogs})
set(MAY_foundry/editor foundry/editor foundry/fonts ${MAY_foundry/half_life})
set(MAY_foundry foundry ${MAY_foundry/editor})
set(MAY_wizard wizard ${BELOW_FOUNDRY})

# What the toolkit shows: each subsystem's forms know their own subsystem and the foundation's forms.
set(LV_FORMS foundation catalogs video gamespy launcher foundry wizard)
set(SHARED_BY_FORMS foundation/forms foundation platform platform/toolkit)
set(MAY_foundation/forms assets ${SHARED_BY_FORMS})
set(MAY_catalogs/forms catalogs/forms catalogs/editors catalogs ${SHARED_BY_FORMS})
set(MAY_video/forms video/forms video ${SHARED_BY_FORMS})
set(MAY_gamespy/forms gamespy/forms gamespy ${SHARED_BY_FORMS})
set(MAY_launcher/forms launcher/forms launcher launcher/start launcher/window launcher/menu ${SHARED_BY_FORMS})
set(MAY_foundry/forms foundry/forms foundry/editor foundry/tables ${SHARED_BY_FORMS})
set(MAY_wizard/forms wizard/forms wizard ${SHARED_BY_FORMS})

# The systems know what they implement. The program, on top, knows its subsystems by their entrances.
set(MAY_platform/memory platform/memory platform)
set(LV_LINUX platform/linux platform/linux/files platform/linux/settings platform/linux/starting)
foreach(folder ${LV_LINUX})
    set(MAY_${folder} platform platform/starting ${LV_LINUX})
endforeach()
set(MAY_platform/linux/toolkit platform/linux/toolkit platform/toolkit platform)
set(MAY_platform/windows platform/windows platform/starting platform)
set(MAY_platform/windows/toolkit platform/windows/toolkit platform/toolkit ${MAY_platform/windows})
set(MAY_app app assets ${LV_LINUX} platform/windows platform/windows/toolkit platform/toolkit foundation foundation/forms
    catalogs/forms video/forms gamespy/forms launcher/start launcher/window launcher/forms foundry foundry/forms wizard
    wizard/forms)

# Folders of the logic, of the toolkit, and of a system.
set(LV_LOGIC ${LV_SUBSYSTEMS} platform/memory)
foreach(subsystem ${LV_SUBSYSTEMS})
    foreach(room ${ROOMS_${subsystem}})
        list(APPEND LV_LOGIC ${subsystem}/${room})
    endforeach()
endforeach()
list(TRANSFORM LV_FORMS APPEND "/forms" OUTPUT_VARIABLE LV_TOOLKIT)
set(LV_OF_LINUX ${LV_LINUX} platform/linux/toolkit)
set(LV_OF_WINDOWS platform/windows platform/windows/toolkit)
