room(strandel_edit KIND PART PART_OF strandel)
room(strandel_read KIND PART PART_OF strandel USES strandel_edit)
set(REFUSED "Room 'strandel_edit' has no floor")
