# Run by CPack before it packs: folders can be read by all, whatever the one who builds lets others do.
file(GLOB_RECURSE alle LIST_DIRECTORIES true "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*")
foreach(eines ${alle})
    if(IS_DIRECTORY "${eines}")
        file(CHMOD "${eines}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    endif()
endforeach()
