# awk -f merge-profile.awk SHIPPED_BEFORE SHIPPED_NOW PROFILE: prints PROFILE brought up to date. Its lines
# that still say what was shipped before take the new value or go; every other line stays; keys that are
# shipped for the first time come behind the last key of their section. Keys that were taken out of PROFILE
# do not come back. Of two sections or keys of one name the first counts, as in the designer.

# Sets `section`, "" in a section that does not count, and `key`, "" on any other line than a key's.
function look_at(line) {
  key = ""
  if (line ~ /^\[[^]]*\]/) {
    section = substr(line, 2, index(line, "]") - 2)
    if ((FILENAME, section) in begun) section = ""
    else begun[FILENAME, section] = 1
  } else if (section != "" && line ~ /^[^;=]+=/) {
    key = section SUBSEP substr(line, 1, index(line, "=") - 1)
  }
}

function put_new_keys(name,    no) {
  for (no = 1; no <= key_count; ++no)
    if (section_of[no] == name && !(keys[no] in before) && !(keys[no] in found)) {
      if (!(name in last_line)) {
        print "\n[" name "]"
        last_line[name] = 0
      }
      print now[keys[no]]
    }
}

FNR == 1 { section = "" }
{ look_at($0) }

FILENAME == ARGV[1] {
  if (key != "" && !(key in before)) before[key] = $0
  next
}

FILENAME == ARGV[2] {
  if (key != "" && !(key in now)) {
    now[key] = $0
    keys[++key_count] = key
    section_of[key_count] = section
  }
  next
}

key != "" && !(key in found) {
  found[key] = 1
  if (key in before && $0 == before[key]) {
    if (!(key in now)) next
    $0 = now[key]
  }
}

{
  line[++count] = $0
  if (key != "" || (section != "" && !(section in last_line))) last_line[section] = count
}

END {
  for (name in last_line) behind[last_line[name]] = name
  for (no = 1; no <= count; ++no) {
    print line[no]
    if (no in behind) put_new_keys(behind[no])
  }
  for (no = 1; no <= key_count; ++no)
    if (!(section_of[no] in last_line)) put_new_keys(section_of[no])
}
