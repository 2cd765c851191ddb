# The plan of the house: for each room, lowest first, the rooms that it may include besides itself.
# `room` (Room.cmake) builds by it, and the test "include_walk" holds every source against it.
set(HOUSE_ROOMS
  platform/base platform/desktop platform/files platform/drawing platform/controls platform/windows platform/printing
  platform/net platform/qt
  charting settings auto_button diary exchange reports graphwindow summary records shell)
set(ROOMS_WITHOUT_QT ${HOUSE_ROOMS})
list(REMOVE_ITEM ROOMS_WITHOUT_QT platform/qt)

set(MAY_INCLUDE_platform/base       "")
set(MAY_INCLUDE_platform/desktop    platform/base)
set(MAY_INCLUDE_platform/files      platform/base platform/desktop)
set(MAY_INCLUDE_platform/drawing    platform/base)
set(MAY_INCLUDE_platform/controls   platform/base platform/desktop platform/files platform/drawing)
set(MAY_INCLUDE_platform/windows    ${MAY_INCLUDE_platform/controls} platform/controls)
set(MAY_INCLUDE_platform/printing   ${MAY_INCLUDE_platform/windows} platform/windows)
set(MAY_INCLUDE_platform/net        platform/base platform/desktop platform/files)
set(PLATFORM                        ${MAY_INCLUDE_platform/printing} platform/printing)

set(MAY_INCLUDE_platform/qt         ${PLATFORM} platform/net)
set(MAY_INCLUDE_charting            platform/base platform/drawing)
set(MAY_INCLUDE_settings            ${PLATFORM})
set(MAY_INCLUDE_auto_button         platform/base platform/drawing platform/controls)
set(MAY_INCLUDE_diary               ${PLATFORM} settings auto_button)
set(MAY_INCLUDE_exchange            ${PLATFORM} settings auto_button diary)
set(MAY_INCLUDE_reports             ${PLATFORM} settings auto_button diary)
set(MAY_INCLUDE_graphwindow         ${PLATFORM} settings auto_button diary charting)
set(MAY_INCLUDE_summary             ${PLATFORM} settings auto_button diary charting)
set(MAY_INCLUDE_records             ${PLATFORM} settings auto_button reports)
set(MAY_INCLUDE_shell               ${HOUSE_ROOMS})
