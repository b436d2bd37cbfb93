# The tables of commands and of controls, as quilm-script lists them.

# The text of a listing with a line's end before each of its lines and none behind the last, for HTML.
function(read_listing result name)
  file(READ "${LISTINGS}/${name}.txt" text)
  string(REPLACE "&" "&amp;" text "${text}")
  string(REPLACE "<" "&lt;" text "${text}")
  string(REPLACE ">" "&gt;" text "${text}")
  string(REGEX REPLACE "\n$" "" text "${text}")
  set(${result} "\n${text}" PARENT_SCOPE)
endfunction()

# A line that begins with blanks goes on with the effect of the command above it; two blanks part form and effect.
function(command_table result)
  read_listing(text commands)
  string(REGEX REPLACE "\n  +" "  " text "${text}")
  string(REGEX REPLACE "\n([^ \n]+( [^ \n]+)*)  +([^\n]*)" "\n<tr><th><code>\\1</code><td>\\3" text "${text}")
  string(REGEX REPLACE "  +" " " text "${text}")
  set(${result} "<table class=\"commands\">${text}\n</table>" PARENT_SCOPE)
endfunction()

# A list of the pages, and a table of each one's controls.
function(control_tables list_result tables_result)
  read_listing(text controls)
  string(REGEX REPLACE "\n  [^\n]*" "" pages "${text}")
  string(REGEX REPLACE "\n([^:\n]+): ([^\n]*)" "\n<li><a href=\"#\\1\">\\1</a> \\2</li>" pages "${pages}")
  set(${list_result} "<ul class=\"pages\">${pages}\n</ul>" PARENT_SCOPE)

  string(REGEX REPLACE "\n  ([^ \n]+) +([^ \n]+) *([^\n]*)" "\n<tr><th><code>\\1</code><td>\\2<td>\\3" text "${text}")
  string(REGEX REPLACE "\n(frm[^:\n]+): ([^\n]*)" "\n</table>\n<h2 id=\"\\1\"><code>\\1</code> \\2</h2>\n<table class=\"controls\">" text "${text}")
  string(REPLACE "\n<table class=\"controls\">\n</table>" "" text "${text}\n</table>")  # of a page without controls
  string(REGEX REPLACE "^\n</table>" "" text "${text}")
  set(${tables_result} "${text}" PARENT_SCOPE)
endfunction()

command_table(commands)
control_tables(control_pages controls)

# Puts the tables into the variable of this name.
function(fill_in_listings variable)
  set(text "${${variable}}")
  string(REPLACE "@COMMANDS@" "${commands}" text "${text}")
  string(REPLACE "@CONTROL_PAGES@" "${control_pages}" text "${text}")
  string(REPLACE "@CONTROLS@" "${controls}" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()
