<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>Causes</name>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Cannot edit %1: %2</source>
        <translation>Cannot edit %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1: %2</source>
        <translation>Cannot rename %1: %2</translation>
    </message>
    <message>
        <source>Cannot rename %1 to %2: %3</source>
        <translation>Cannot rename %1 to %2: %3</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Cannot read %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Cannot write %1: %2</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>cannot write %1: %2</translation>
    </message>
    <message>
        <source>its folder cannot be written to; change the permissions of %1</source>
        <translation>its folder cannot be written to; change the permissions of %1</translation>
    </message>
    <message>
        <source>its folder lets only its owner change it; change the owner, or the permissions of %1</source>
        <translation>its folder lets only its owner change it; change the owner, or the permissions of %1</translation>
    </message>
    <message>
        <source>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</source>
        <translation>its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there</translation>
    </message>
    <message>
        <source>it is write-protected; allow writing to it, or use --force</source>
        <translation>it is write-protected; allow writing to it, or use --force</translation>
    </message>
    <message>
        <source>its sidecar %1 is write-protected; allow writing to it, or use --force</source>
        <translation>its sidecar %1 is write-protected; allow writing to it, or use --force</translation>
    </message>
    <message>
        <source>its sidecar must be edited with it. %1; repair or move the sidecar</source>
        <translation>its sidecar must be edited with it. %1; repair or move the sidecar</translation>
    </message>
    <message>
        <source>its sidecar %1 must be edited with it, but %2</source>
        <translation>its sidecar %1 must be edited with it, but %2</translation>
    </message>
    <message>
        <source>it has no date to shift</source>
        <translation>it has no date to shift</translation>
    </message>
    <message>
        <source>its year would not be 1 to 9999</source>
        <translation>its year would not be 1 to 9999</translation>
    </message>
    <message>
        <source>its metadata cannot be changed without losing data (%1)</source>
        <translation>its metadata cannot be changed without losing data (%1)</translation>
    </message>
    <message>
        <source>its metadata would be wrong afterwards</source>
        <translation>its metadata would be wrong afterwards</translation>
    </message>
    <message>
        <source>its EXIF data, which are kept as text, are damaged</source>
        <translation>its EXIF data, which are kept as text, are damaged</translation>
    </message>
    <message>
        <source>its EXIF data are damaged</source>
        <translation>its EXIF data are damaged</translation>
    </message>
    <message>
        <source>its XMP data are damaged</source>
        <translation>its XMP data are damaged</translation>
    </message>
    <message>
        <source>its TIFF directory is damaged</source>
        <translation>its TIFF directory is damaged</translation>
    </message>
    <message>
        <source>its picture format is not known</source>
        <translation>its picture format is not known</translation>
    </message>
    <message>
        <source>its format cannot be edited</source>
        <translation>its format cannot be edited</translation>
    </message>
    <message>
        <source>photos of the format %1 cannot be edited</source>
        <translation>photos of the format %1 cannot be edited</translation>
    </message>
    <message>
        <source>its picture would change</source>
        <translation>its picture would change</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>it is empty</translation>
    </message>
    <message>
        <source>it is damaged: %1</source>
        <translation>it is damaged: %1</translation>
    </message>
    <message>
        <source>it is larger than 2 GiB</source>
        <translation>it is larger than 2 GiB</translation>
    </message>
    <message>
        <source>it is larger than 4 MiB</source>
        <translation>it is larger than 4 MiB</translation>
    </message>
    <message>
        <source>it was changed while it was read</source>
        <translation>it was changed while it was read</translation>
    </message>
    <message>
        <source>editing it takes more memory than there is</source>
        <translation>editing it takes more memory than there is</translation>
    </message>
    <message>
        <source>its JPEG data is damaged</source>
        <translation>its JPEG data is damaged</translation>
    </message>
    <message>
        <source>its JPEG data ends before the picture</source>
        <translation>its JPEG data ends before the picture</translation>
    </message>
    <message>
        <source>its JPEG data breaks off before the picture</source>
        <translation>its JPEG data breaks off before the picture</translation>
    </message>
    <message>
        <source>there is no room left in its EXIF block</source>
        <translation>there is no room left in its EXIF block</translation>
    </message>
    <message>
        <source>its PNG data breaks off</source>
        <translation>its PNG data breaks off</translation>
    </message>
    <message>
        <source>its PNG data does not begin with a picture</source>
        <translation>its PNG data does not begin with a picture</translation>
    </message>
    <message>
        <source>it has two EXIF blocks</source>
        <translation>it has two EXIF blocks</translation>
    </message>
    <message>
        <source>its WebP data breaks off</source>
        <translation>its WebP data breaks off</translation>
    </message>
    <message>
        <source>its WebP data holds no picture</source>
        <translation>its WebP data holds no picture</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in place</source>
        <translation>its %1 cannot be changed in place</translation>
    </message>
    <message>
        <source>its date cannot be changed in its %1 data</source>
        <translation>its date cannot be changed in its %1 data</translation>
    </message>
    <message>
        <source>its %1 cannot be changed in its %2 data</source>
        <translation>its %1 cannot be changed in its %2 data</translation>
    </message>
    <message>
        <source>it breaks off before its end</source>
        <translation>it breaks off before its end</translation>
    </message>
    <message>
        <source>its text is damaged</source>
        <translation>its text is damaged</translation>
    </message>
    <message>
        <source>it has too many properties</source>
        <translation>it has too many properties</translation>
    </message>
    <message>
        <source>%1 is unchanged: %2</source>
        <translation>%1 is unchanged: %2</translation>
    </message>
    <message>
        <source>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</source>
        <translation>%1 was edited, but the catalogue could not be updated (%2). The next run updates it</translation>
    </message>
    <message>
        <source>%1 cannot be read back as what was written</source>
        <translation>%1 cannot be read back as what was written</translation>
    </message>
    <message>
        <source>%1 is left as it is, because it belongs to %2</source>
        <translation>%1 is left as it is, because it belongs to %2</translation>
    </message>
    <message>
        <source>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</source>
        <translation>%1 is missing for now, but its versions are kept (%2). Free space on its disk and run &quot;lumidex undo&quot; again</translation>
    </message>
    <message>
        <source>%1 is left as it is: another program changed %2, where its other version was kept</source>
        <translation>%1 is left as it is: another program changed %2, where its other version was kept</translation>
    </message>
    <message>
        <source>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</source>
        <translation>%1 is left as it is: its disk has no room for its other version (%2 bytes). Free space there and try again</translation>
    </message>
    <message>
        <source>%1 is left as it is: its other version is no longer kept</source>
        <translation>%1 is left as it is: its other version is no longer kept</translation>
    </message>
    <message>
        <source>%1 was changed later and is left as it is</source>
        <translation>%1 was changed later and is left as it is</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 no longer exists</translation>
    </message>
    <message>
        <source>%1 cannot be reached: its disk may not be connected</source>
        <translation>%1 cannot be reached: its disk may not be connected</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>The undo journal %1 cannot be used: %2</source>
        <translation>The undo journal %1 cannot be used: %2</translation>
    </message>
    <message>
        <source>another program is renaming or editing photos with it; try again when that has finished</source>
        <translation>another program is renaming or editing photos with it; try again when that has finished</translation>
    </message>
    <message>
        <source>no step is started without %1 MiB free for finishing and undoing it (%2)</source>
        <translation>no step is started without %1 MiB free for finishing and undoing it (%2)</translation>
    </message>
    <message>
        <source>there is no room for undoing it (%1)</source>
        <translation>there is no room for undoing it (%1)</translation>
    </message>
    <message>
        <source>Cannot change the target of the link %1: %2</source>
        <translation>Cannot change the target of the link %1: %2</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Cannot move %1 to the trash: %2</translation>
    </message>
    <message>
        <source>no free name in the trash</source>
        <translation>no free name in the trash</translation>
    </message>
    <message>
        <source>another file has that name</source>
        <translation>another file has that name</translation>
    </message>
    <message>
        <source>another file has its former name</source>
        <translation>another file has its former name</translation>
    </message>
    <message>
        <source>it is on another volume</source>
        <translation>it is on another volume</translation>
    </message>
    <message>
        <source>it is no longer a file</source>
        <translation>it is no longer a file</translation>
    </message>
    <message>
        <source>%1 was kept, because its photo was kept</source>
        <translation>%1 was kept, because its photo was kept</translation>
    </message>
    <message>
        <source>%1 was kept, because the photo kept in its place, %2, no longer exists</source>
        <translation>%1 was kept, because the photo kept in its place, %2, no longer exists</translation>
    </message>
    <message>
        <source>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</source>
        <translation>%1 is in the trash as %2, which cannot be reached: its disk may not be connected</translation>
    </message>
    <message>
        <source>%1 may be in the trash as %2, which cannot be read: %3</source>
        <translation>%1 may be in the trash as %2, which cannot be read: %3</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash; another file has its name</source>
        <translation>%1 is no longer in the trash; another file has its name</translation>
    </message>
    <message>
        <source>%1 is no longer in the trash and cannot be brought back</source>
        <translation>%1 is no longer in the trash and cannot be brought back</translation>
    </message>
    <message>
        <source>%1 remains in the trash as %2: %3</source>
        <translation>%1 remains in the trash as %2: %3</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; is kept, because photos were added to it later</source>
        <translation>The album &quot;%1&quot; is kept, because photos were added to it later</translation>
    </message>
    <message>
        <source>The album &quot;%1&quot; no longer exists</source>
        <translation>The album &quot;%1&quot; no longer exists</translation>
    </message>
    <message>
        <source>Another album has the name &quot;%1&quot; now</source>
        <translation>Another album has the name &quot;%1&quot; now</translation>
    </message>
    <message>
        <source>%1 is kept: %2.</source>
        <translation>%1 is kept: %2.</translation>
    </message>
    <message>
        <source>it is already in a trash</source>
        <translation>it is already in a trash</translation>
    </message>
    <message>
        <source>it is a link to another file</source>
        <translation>it is a link to another file</translation>
    </message>
    <message>
        <source>it no longer exists</source>
        <translation>it no longer exists</translation>
    </message>
    <message>
        <source>it was changed after it was analysed</source>
        <translation>it was changed after it was analysed</translation>
    </message>
    <message>
        <source>it was changed after it was compared</source>
        <translation>it was changed after it was compared</translation>
    </message>
    <message>
        <source>it is another name of a file that is kept</source>
        <translation>it is another name of a file that is kept</translation>
    </message>
    <message>
        <source>it is of the same shot as %1, which is kept</source>
        <translation>it is of the same shot as %1, which is kept</translation>
    </message>
    <message>
        <source>it is like others of its group, but not like the photo to keep, %1</source>
        <translation>it is like others of its group, but not like the photo to keep, %1</translation>
    </message>
    <message>
        <source>it has tags or albums that the photo to keep, %1, does not have</source>
        <translation>it has tags or albums that the photo to keep, %1, does not have</translation>
    </message>
    <message>
        <source>it is a raw file, and no raw file of its group is kept</source>
        <translation>it is a raw file, and no raw file of its group is kept</translation>
    </message>
    <message>
        <source>its settings, %1, would be lost: the photo to keep, %2, does not have them</source>
        <translation>its settings, %1, would be lost: the photo to keep, %2, does not have them</translation>
    </message>
    <message>
        <source>the link %1 leads to it</source>
        <translation>the link %1 leads to it</translation>
    </message>
    <message>
        <source>%1, to which it belongs, is kept</source>
        <translation>%1, to which it belongs, is kept</translation>
    </message>
    <message>
        <source>the settings in %1 were changed</source>
        <translation>the settings in %1 were changed</translation>
    </message>
    <message>
        <source>the photo to keep, %1, no longer exists</source>
        <translation>the photo to keep, %1, no longer exists</translation>
    </message>
    <message>
        <source>the photo to keep, %1, was changed after it was analysed</source>
        <translation>the photo to keep, %1, was changed after it was analysed</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is no longer a file</source>
        <translation>the photo to keep, %1, is no longer a file</translation>
    </message>
    <message>
        <source>the photo to keep, %1, cannot be read (%2)</source>
        <translation>the photo to keep, %1, cannot be read (%2)</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is in a trash</source>
        <translation>the photo to keep, %1, is in a trash</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is a link to another file</source>
        <translation>the photo to keep, %1, is a link to another file</translation>
    </message>
    <message>
        <source>the photo to keep, %1, breaks off before the end of its picture</source>
        <translation>the photo to keep, %1, breaks off before the end of its picture</translation>
    </message>
    <message>
        <source>the photo to keep, %1, is damaged: %2</source>
        <translation>the photo to keep, %1, is damaged: %2</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete.</source>
        <translation>Interrupted undo of &quot;%1&quot; is now complete.</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete.</source>
        <translation>Interrupted redo of &quot;%1&quot; is now complete.</translation>
    </message>
    <message>
        <source>Interrupted undo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Interrupted undo of &quot;%1&quot; is now complete, except for:</translation>
    </message>
    <message>
        <source>Interrupted redo of &quot;%1&quot; is now complete, except for:</source>
        <translation>Interrupted redo of &quot;%1&quot; is now complete, except for:</translation>
    </message>
    <message>
        <source>Interrupted step &quot;%1&quot; is now complete.</source>
        <translation>Interrupted step &quot;%1&quot; is now complete.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</source>
        <translation>&quot;%1&quot; was interrupted and will be finished once %2 can be reached.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</source>
        <translation>&quot;%1&quot; was interrupted and cannot be finished (%2); the files have their former names.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</source>
        <translation>&quot;%1&quot; was interrupted and cannot be finished (%2), nor undone (%3).</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</source>
        <translation>&quot;%1&quot; was interrupted. Photos edited: %2; the others are unchanged.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</source>
        <translation>&quot;%1&quot; was interrupted. Copies made: %2; run the same import to copy the rest.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</source>
        <translation>&quot;%1&quot; was interrupted. Files moved: %2; the others are where they were.</translation>
    </message>
    <message>
        <source>Originals that this catalogue does not know were moved to %1.</source>
        <translation>Originals that this catalogue does not know were moved to %1.</translation>
    </message>
    <message>
        <source>%1 and its sidecar disagree, because only one of them was edited (%2).</source>
        <translation>%1 and its sidecar disagree, because only one of them was edited (%2).</translation>
    </message>
    <message>
        <source>It cannot be read</source>
        <translation>It cannot be read</translation>
    </message>
    <message>
        <source>It is a pipe or a device</source>
        <translation>It is a pipe or a device</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>It is not a regular file</translation>
    </message>
    <message>
        <source>It is empty</source>
        <translation>It is empty</translation>
    </message>
    <message>
        <source>It is damaged: %1</source>
        <translation>It is damaged: %1</translation>
    </message>
    <message>
        <source>Its picture format is not known</source>
        <translation>Its picture format is not known</translation>
    </message>
    <message>
        <source>Its name is not valid text</source>
        <translation>Its name is not valid text</translation>
    </message>
    <message>
        <source>It is named like a housekeeping file, but may be a picture or a video</source>
        <translation>It is named like a housekeeping file, but may be a picture or a video</translation>
    </message>
    <message>
        <source>The link leads to a file that is missing</source>
        <translation>The link leads to a file that is missing</translation>
    </message>
    <message>
        <source>The link leads to a file that cannot be read</source>
        <translation>The link leads to a file that cannot be read</translation>
    </message>
    <message>
        <source>The link leads back to itself</source>
        <translation>The link leads back to itself</translation>
    </message>
    <message>
        <source>The link leads to a folder that cannot be read</source>
        <translation>The link leads to a folder that cannot be read</translation>
    </message>
    <message>
        <source>The link leads back to a folder above it</source>
        <translation>The link leads back to a folder above it</translation>
    </message>
    <message>
        <source>The link leads to a folder that was already visited</source>
        <translation>The link leads to a folder that was already visited</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 is hidden</translation>
    </message>
    <message>
        <source>%1 is not named like a photo</source>
        <translation>%1 is not named like a photo</translation>
    </message>
    <message>
        <source>%1 is a link to a file that is missing</source>
        <translation>%1 is a link to a file that is missing</translation>
    </message>
    <message>
        <source>it was changed while it was copied</source>
        <translation>it was changed while it was copied</translation>
    </message>
    <message>
        <source>the copy differs from the original</source>
        <translation>the copy differs from the original</translation>
    </message>
    <message>
        <source>the copy cannot be written: %1</source>
        <translation>the copy cannot be written: %1</translation>
    </message>
    <message>
        <source>the copy cannot be read back: %1</source>
        <translation>the copy cannot be read back: %1</translation>
    </message>
    <message>
        <source>the copy cannot be recorded</source>
        <translation>the copy cannot be recorded</translation>
    </message>
    <message>
        <source>another file got the name %1 meanwhile</source>
        <translation>another file got the name %1 meanwhile</translation>
    </message>
    <message>
        <source>it is identical to %1, which could not be copied</source>
        <translation>it is identical to %1, which could not be copied</translation>
    </message>
    <message>
        <source>the import was interrupted</source>
        <translation>the import was interrupted</translation>
    </message>
    <message>
        <source>It may be any of %1 photos that are missing</source>
        <translation>It may be any of %1 photos that are missing</translation>
    </message>
    <message>
        <source>It is missing, and %1 files may be it</source>
        <translation>It is missing, and %1 files may be it</translation>
    </message>
    <message>
        <source>It was changed or replaced, and a file has its former content</source>
        <translation>It was changed or replaced, and a file has its former content</translation>
    </message>
    <message>
        <source>identical files</source>
        <translation>identical files</translation>
    </message>
    <message>
        <source>the same pixels</source>
        <translation>the same pixels</translation>
    </message>
    <message>
        <source>the same picture, smaller</source>
        <translation>the same picture, smaller</translation>
    </message>
    <message>
        <source>the same picture, larger</source>
        <translation>the same picture, larger</translation>
    </message>
    <message>
        <source>the same picture, compressed again or in another format</source>
        <translation>the same picture, compressed again or in another format</translation>
    </message>
    <message>
        <source>the same picture, mirrored</source>
        <translation>the same picture, mirrored</translation>
    </message>
    <message>
        <source>the same picture, brighter</source>
        <translation>the same picture, brighter</translation>
    </message>
    <message>
        <source>the same picture, darker</source>
        <translation>the same picture, darker</translation>
    </message>
    <message>
        <source>the same picture, with more contrast</source>
        <translation>the same picture, with more contrast</translation>
    </message>
    <message>
        <source>the same picture, with less contrast</source>
        <translation>the same picture, with less contrast</translation>
    </message>
    <message>
        <source>the same picture, sharpened</source>
        <translation>the same picture, sharpened</translation>
    </message>
    <message>
        <source>the same picture, changed all over</source>
        <translation>the same picture, changed all over</translation>
    </message>
    <message>
        <source>the same picture, larger and with more detail</source>
        <translation>the same picture, larger and with more detail</translation>
    </message>
    <message>
        <source>the same picture with a border or a caption</source>
        <translation>the same picture with a border or a caption</translation>
    </message>
    <message>
        <source>the same picture without colours</source>
        <translation>the same picture without colours</translation>
    </message>
    <message>
        <source>the same picture with colours</source>
        <translation>the same picture with colours</translation>
    </message>
    <message>
        <source>the same picture as far as a preview shows</source>
        <translation>the same picture as far as a preview shows</translation>
    </message>
    <message>
        <source>the same picture as far as so few pixels show</source>
        <translation>the same picture as far as so few pixels show</translation>
    </message>
    <message>
        <source>the same picture as far as it shows when it is made smaller</source>
        <translation>the same picture as far as it shows when it is made smaller</translation>
    </message>
    <message>
        <source>the same picture, but for something small at %1</source>
        <translation>the same picture, but for something small at %1</translation>
    </message>
    <message>
        <source>nearly the same view</source>
        <translation>nearly the same view</translation>
    </message>
    <message>
        <source>the same view, turned a little</source>
        <translation>the same view, turned a little</translation>
    </message>
    <message>
        <source>the same view, cropped</source>
        <translation>the same view, cropped</translation>
    </message>
    <message>
        <source>the same view with more around it</source>
        <translation>the same view with more around it</translation>
    </message>
    <message>
        <source>the same view, brighter</source>
        <translation>the same view, brighter</translation>
    </message>
    <message>
        <source>the same view, darker</source>
        <translation>the same view, darker</translation>
    </message>
    <message>
        <source>another plain colour</source>
        <translation>another plain colour</translation>
    </message>
    <message>
        <source>shows something else</source>
        <translation>shows something else</translation>
    </message>
    <message>
        <source>differs in some places</source>
        <translation>differs in some places</translation>
    </message>
    <message>
        <source>differs at %1</source>
        <translation>differs at %1</translation>
    </message>
    <message>
        <source>the upper left</source>
        <translation>the upper left</translation>
    </message>
    <message>
        <source>the top</source>
        <translation>the top</translation>
    </message>
    <message>
        <source>the upper right</source>
        <translation>the upper right</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>the left</translation>
    </message>
    <message>
        <source>the middle</source>
        <translation>the middle</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>the right</translation>
    </message>
    <message>
        <source>the lower left</source>
        <translation>the lower left</translation>
    </message>
    <message>
        <source>the bottom</source>
        <translation>the bottom</translation>
    </message>
    <message>
        <source>the lower right</source>
        <translation>the lower right</translation>
    </message>
    <message>
        <source>it cannot be compared: %1</source>
        <translation>it cannot be compared: %1</translation>
    </message>
    <message>
        <source>the photo to keep cannot be compared: %1</source>
        <translation>the photo to keep cannot be compared: %1</translation>
    </message>
    <message>
        <source>it has too few pixels</source>
        <translation>it has too few pixels</translation>
    </message>
    <message>
        <source>it is partly transparent</source>
        <translation>it is partly transparent</translation>
    </message>
    <message>
        <source>it breaks off before the end of its picture</source>
        <translation>it breaks off before the end of its picture</translation>
    </message>
    <message>
        <source>it holds more behind its picture</source>
        <translation>it holds more behind its picture</translation>
    </message>
    <message>
        <source>of several pictures in a file only the first can be compared</source>
        <translation>of several pictures in a file only the first can be compared</translation>
    </message>
    <message>
        <source>there is not enough memory to compare it</source>
        <translation>there is not enough memory to compare it</translation>
    </message>
    <message>
        <source>nothing of the picture can be decoded</source>
        <translation>nothing of the picture can be decoded</translation>
    </message>
    <message>
        <source>the head of the picture is damaged</source>
        <translation>the head of the picture is damaged</translation>
    </message>
    <message>
        <source>a part of the picture is damaged</source>
        <translation>a part of the picture is damaged</translation>
    </message>
    <message>
        <source>its content is not a picture of a known format</source>
        <translation>its content is not a picture of a known format</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>the file is empty</translation>
    </message>
    <message>
        <source>the system lets nobody move it; take its attribute &quot;immutable&quot; away</source>
        <translation>the system lets nobody move it; take its attribute &quot;immutable&quot; away</translation>
    </message>
    <message>
        <source>has a link of the same name beside it, which would not be renamed: %1</source>
        <translation>has a link of the same name beside it, which would not be renamed: %1</translation>
    </message>
    <message>
        <source>has no date</source>
        <translation>has no date</translation>
    </message>
    <message>
        <source>has no readable date: %1</source>
        <translation>has no readable date: %1</translation>
    </message>
    <message>
        <source>is given twice</source>
        <translation>is given twice</translation>
    </message>
    <message>
        <source>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</source>
        <translation>%1 is a link to somewhere else, and imports do not write through links. Remove the link, then import again.</translation>
    </message>
    <message>
        <source>%1 is no file, and imports keep one there. Remove it, then import again.</source>
        <translation>%1 is no file, and imports keep one there. Remove it, then import again.</translation>
    </message>
    <message>
        <source>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</source>
        <translation>%1 is a second name of another file (a hard link), and imports do not write to such. Put a copy of it in its place, or remove it, then import again.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is not a folder.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 bytes are needed, %3 are free.</source>
        <translation>There is not enough space in %1: %2 bytes are needed, %3 are free.</translation>
    </message>
    <message>
        <source>would be the name of two photos: %1</source>
        <translation>would be the name of two photos: %1</translation>
    </message>
    <message>
        <source>would be the name of two files: %1</source>
        <translation>would be the name of two files: %1</translation>
    </message>
    <message>
        <source>is the name of another file: %1</source>
        <translation>is the name of another file: %1</translation>
    </message>
    <message>
        <source>is the name of another photo or its sidecar: %1</source>
        <translation>is the name of another photo or its sidecar: %1</translation>
    </message>
    <message>
        <source>is the name of a photo that cannot be renamed: %1</source>
        <translation>is the name of a photo that cannot be renamed: %1</translation>
    </message>
    <message>
        <source>holds a separator of folders %1</source>
        <translation>holds a separator of folders %1</translation>
    </message>
    <message>
        <source>holds the sign for unreadable characters</source>
        <translation>holds the sign for unreadable characters</translation>
    </message>
    <message>
        <source>holds a control character</source>
        <translation>holds a control character</translation>
    </message>
    <message>
        <source>holds the character %1</source>
        <translation>holds the character %1</translation>
    </message>
    <message>
        <source>begins with a dot, which hides the file</source>
        <translation>begins with a dot, which hides the file</translation>
    </message>
    <message>
        <source>is longer than %1 bytes</source>
        <translation>is longer than %1 bytes</translation>
    </message>
    <message>
        <source>names a device of Windows</source>
        <translation>names a device of Windows</translation>
    </message>
    <message>
        <source>ends in a dot, which Windows drops</source>
        <translation>ends in a dot, which Windows drops</translation>
    </message>
    <message>
        <source>ends in a blank, which Windows drops</source>
        <translation>ends in a blank, which Windows drops</translation>
    </message>
    <message>
        <source>is not valid UTF-8</source>
        <translation>is not valid UTF-8</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Select folder</source>
        <translation>Select folder</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Yes to &amp;All</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>N&amp;o to All</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Save All</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Restore Defaults</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>Albums</source>
        <translation>Albums</translation>
    </message>
    <message>
        <source>Proposed albums</source>
        <translation>Proposed albums</translation>
    </message>
    <message>
        <source>Similar photos</source>
        <translation>Similar photos</translation>
    </message>
    <message>
        <source>Groups by year</source>
        <translation>Groups by year</translation>
    </message>
    <message>
        <source>No similar photos</source>
        <translation>No similar photos</translation>
    </message>
    <message>
        <source>Groups appear here once the catalogue holds photos that are alike.</source>
        <translation>Groups appear here once the catalogue holds photos that are alike.</translation>
    </message>
    <message>
        <source>Albums by year</source>
        <translation>Albums by year</translation>
    </message>
    <message>
        <source>No albums yet</source>
        <translation>No albums yet</translation>
    </message>
    <message>
        <source>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</source>
        <translation>Albums appear here once there are enough photos of a holiday or of a month&apos;s weekends. Scan more folders and try again.</translation>
    </message>
    <message>
        <source>Unnamed album</source>
        <translation>Unnamed album</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Undated</translation>
    </message>
    <message>
        <source>Accepted</source>
        <translation>Accepted</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>No picture</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>and %1 more</numerusform>
            <numerusform>and %1 more</numerusform>
        </translation>
    </message>
    <message>
        <source>Made with Lumidex. This page holds all its pictures and needs no other file.</source>
        <translation>Made with Lumidex. This page holds all its pictures and needs no other file.</translation>
    </message>
</context>
<context>
    <name>Terminal</name>
    <message>
        <source>Drawing</source>
        <translation>Drawing</translation>
    </message>
    <message>
        <source>pictures</source>
        <comment>of so many</comment>
        <translation>pictures</translation>
    </message>
    <message>
        <source>The catalogue holds no photos yet. Run: lumidex scan DIR</source>
        <translation>The catalogue holds no photos yet. Run: lumidex scan DIR</translation>
    </message>
    <message numerus="yes">
        <source>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</source>
        <translation>
            <numerusform>The %1 photo of the catalogue was missing at the last scan. Is a disk not connected?</numerusform>
            <numerusform>All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted.</source>
        <translation>Interrupted.</translation>
    </message>
    <message>
        <source>No album was accepted.</source>
        <translation>No album was accepted.</translation>
    </message>
    <message>
        <source>The page %1 is written; it shows all chosen albums as accepted.</source>
        <translation>The page %1 is written; it shows all chosen albums as accepted.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message numerus="yes">
        <source>yes, %1 more now</source>
        <translation>
            <numerusform>yes, %1 more now</numerusform>
            <numerusform>yes, %1 more now</numerusform>
        </translation>
    </message>
    <message>
        <source>ALBUM</source>
        <translation>ALBUM</translation>
    </message>
    <message>
        <source>WHEN</source>
        <translation>WHEN</translation>
    </message>
    <message>
        <source>FIRST DAY</source>
        <translation>FIRST DAY</translation>
    </message>
    <message>
        <source>LAST DAY</source>
        <translation>LAST DAY</translation>
    </message>
    <message>
        <source>PHOTOS</source>
        <translation>PHOTOS</translation>
    </message>
    <message>
        <source>ACCEPTED</source>
        <translation>ACCEPTED</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 photos)</source>
        <translation>
            <numerusform>%1 (%2 photo)</numerusform>
            <numerusform>%1 (%2 photos)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Accepted %1: %2 photos.</source>
        <translation>
            <numerusform>Accepted %1: %2 photo.</numerusform>
            <numerusform>Accepted %1: %2 photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %1 photos to %2, which was accepted before.</source>
        <translation>
            <numerusform>Added %1 photo to %2, which was accepted before.</numerusform>
            <numerusform>Added %1 photos to %2, which was accepted before.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was accepted before, and there are no photos to add.</source>
        <translation>%1 was accepted before, and there are no photos to add.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <comment>albums from</comment>
        <translation>
            <numerusform>%1 photo</numerusform>
            <numerusform>%1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 of them have no date</source>
        <comment>photos; how many</comment>
        <translation>
            <numerusform>%1, %2 of them has no date</numerusform>
            <numerusform>%1, %2 of them have no date</numerusform>
        </translation>
    </message>
    <message>
        <source>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</source>
        <translation>No album has been accepted yet. &quot;lumidex albums&quot; shows proposals.</translation>
    </message>
    <message numerus="yes">
        <source>%1 accepted albums.</source>
        <translation>
            <numerusform>%1 accepted album.</numerusform>
            <numerusform>%1 accepted albums.</numerusform>
        </translation>
    </message>
    <message>
        <source>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</source>
        <translation>No albums to propose from %1: an album needs 20 photos or more of one
holiday, or of the weekends of one month.</translation>
    </message>
    <message numerus="yes">
        <source>%1 albums</source>
        <translation>
            <numerusform>%1 album</numerusform>
            <numerusform>%1 albums</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 from %2; %3 accepted.</source>
        <comment>albums, photos, how many</comment>
        <translation>
            <numerusform>%1 from %2; %3 accepted.</numerusform>
            <numerusform>%1 from %2; %3 accepted.</numerusform>
        </translation>
    </message>
    <message>
        <source>Calendar: %1 (from the server)</source>
        <translation>Calendar: %1 (from the server)</translation>
    </message>
    <message>
        <source>Calendar: %1</source>
        <translation>Calendar: %1</translation>
    </message>
    <message>
        <source>The calendar has no holidays for %1.</source>
        <translation>The calendar has no holidays for %1.</translation>
    </message>
    <message>
        <source>HOLIDAY</source>
        <translation>HOLIDAY</translation>
    </message>
    <message>
        <source>DAYS</source>
        <translation>DAYS</translation>
    </message>
    <message>
        <source>(no name)</source>
        <translation>(no name)</translation>
    </message>
    <message numerus="yes">
        <source>%1 holidays for %2.</source>
        <translation>
            <numerusform>%1 holiday for %2.</numerusform>
            <numerusform>%1 holidays for %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no mistakes found.</source>
        <translation>%1: no mistakes found.</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>event %1</translation>
    </message>
    <message>
        <source>list</source>
        <comment>of the events of a language</comment>
        <translation>list</translation>
    </message>
    <message numerus="yes">
        <source>%1: %2 mistakes found.</source>
        <translation>
            <numerusform>%1: %2 mistake found.</numerusform>
            <numerusform>%1: %2 mistakes found.</numerusform>
        </translation>
    </message>
    <message>
        <source>The calendar was not updated: %1</source>
        <translation>The calendar was not updated: %1</translation>
    </message>
    <message>
        <source>There is no calendar.</source>
        <translation>There is no calendar.</translation>
    </message>
    <message>
        <source>Still in use: %1</source>
        <translation>Still in use: %1</translation>
    </message>
    <message>
        <source>The calendar was updated: %1</source>
        <translation>The calendar was updated: %1</translation>
    </message>
    <message>
        <source>The calendar is up to date: %1</source>
        <translation>The calendar is up to date: %1</translation>
    </message>
    <message>
        <source>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>The holiday calendar could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</translation>
    </message>
    <message>
        <source>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</source>
        <translation>The holiday calendar %1 could not be read completely, so holidays are missing. Run: lumidex calendar check, or lumidex calendar update.</translation>
    </message>
    <message>
        <source>unreadable</source>
        <translation>unreadable</translation>
    </message>
    <message>
        <source>Volume of</source>
        <translation>Volume of</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Needed</source>
        <translation>Needed</translation>
    </message>
    <message>
        <source>Free</source>
        <comment>room on a disk</comment>
        <translation>Free</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>free room</comment>
        <translation>unknown</translation>
    </message>
    <message numerus="yes">
        <source>%1 files checked</source>
        <translation>
            <numerusform>%1 file checked</numerusform>
            <numerusform>%1 files checked</numerusform>
        </translation>
    </message>
    <message>
        <source>no problems found.</source>
        <translation>no problems found.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was changed.</source>
        <translation>Interrupted. Nothing was changed.</translation>
    </message>
    <message>
        <source>There are no photos in the given folders.</source>
        <translation>There are no photos in the given folders.</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Checking</translation>
    </message>
    <message>
        <source>photos</source>
        <comment>of so many</comment>
        <translation>photos</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Editing</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>upright</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>mirrored</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>upside down</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>upside down, mirrored</translation>
    </message>
    <message>
        <source>turned left, mirrored</source>
        <translation>turned left, mirrored</translation>
    </message>
    <message>
        <source>turned right</source>
        <translation>turned right</translation>
    </message>
    <message>
        <source>turned right, mirrored</source>
        <translation>turned right, mirrored</translation>
    </message>
    <message>
        <source>turned left</source>
        <translation>turned left</translation>
    </message>
    <message>
        <source>no date</source>
        <translation>no date</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos would be edited. This was a dry run: nothing was changed.</source>
        <translation>
            <numerusform>%1 photo would be edited. This was a dry run: nothing was changed.</numerusform>
            <numerusform>%1 photos would be edited. This was a dry run: nothing was changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 photo edited; &quot;lumidex undo&quot; undoes it.</numerusform>
            <numerusform>%1 photos edited; &quot;lumidex undo&quot; undoes it.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be edited</source>
        <translation>Cannot be edited</translation>
    </message>
    <message>
        <source>Not edited</source>
        <translation>Not edited</translation>
    </message>
    <message>
        <source>Comparing</source>
        <translation>Comparing</translation>
    </message>
    <message>
        <source>files</source>
        <comment>of so many</comment>
        <translation>files</translation>
    </message>
    <message>
        <source>Copying</source>
        <translation>Copying</translation>
    </message>
    <message>
        <source>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</source>
        <translation>Interrupted. The copies made so far are complete and verified; run the same command to copy the rest.</translation>
    </message>
    <message>
        <source>Would be copied to %1:</source>
        <translation>Would be copied to %1:</translation>
    </message>
    <message>
        <source>Would be added to the catalogue without copying:</source>
        <translation>Would be added to the catalogue without copying:</translation>
    </message>
    <message>
        <source>Copies of one shot would get different names:</source>
        <translation>Copies of one shot would get different names:</translation>
    </message>
    <message>
        <source>Not copied:</source>
        <translation>Not copied:</translation>
    </message>
    <message>
        <source>Not added to the catalogue:</source>
        <translation>Not added to the catalogue:</translation>
    </message>
    <message>
        <source>Skipped:</source>
        <translation>Skipped:</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more (--json lists them)</source>
        <translation>
            <numerusform>and %1 more (--json lists them)</numerusform>
            <numerusform>and %1 more (--json lists them)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are in the catalogue already.</source>
        <translation>
            <numerusform>%1 photo is in the catalogue already.</numerusform>
            <numerusform>%1 photos are in the catalogue already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were copied before.</source>
        <translation>
            <numerusform>%1 file was copied before.</numerusform>
            <numerusform>%1 files were copied before.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos occur twice in the sources.</source>
        <translation>
            <numerusform>%1 photo occurs twice in the sources.</numerusform>
            <numerusform>%1 photos occur twice in the sources.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was imported.</source>
        <translation>Nothing was imported.</translation>
    </message>
    <message>
        <source>Nothing would be imported.</source>
        <translation>Nothing would be imported.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) would be copied</source>
        <translation>
            <numerusform>%1 file (%2) would be copied</numerusform>
            <numerusform>%1 files (%2) would be copied</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added without copying.</source>
        <comment>would be</comment>
        <translation>
            <numerusform>%1 photo added without copying.</numerusform>
            <numerusform>%1 photos added without copying.</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run:
nothing was changed.</source>
        <translation>This was a dry run:
nothing was changed.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files (%2) copied to %3 and verified.</source>
        <translation>
            <numerusform>%1 file (%2) copied to %3 and verified.</numerusform>
            <numerusform>%1 files (%2) copied to %3 and verified.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos added to the catalogue.</source>
        <translation>
            <numerusform>%1 photo added to the catalogue.</numerusform>
            <numerusform>%1 photos added to the catalogue.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files were not copied; run the same command to try again.</source>
        <translation>
            <numerusform>%1 file was not copied; run the same command to try again.</numerusform>
            <numerusform>%1 files were not copied; run the same command to try again.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1:</source>
        <comment>a heading</comment>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 is not supported; %2 is used.</source>
        <comment>languages</comment>
        <translation>%1 is not supported; %2 is used.</translation>
    </message>
    <message>
        <source>%1 of %2 %3</source>
        <comment>done, all, what</comment>
        <translation>%1 of %2 %3</translation>
    </message>
    <message>
        <source>%1 of %2 %3 found so far</source>
        <comment>done, all, what</comment>
        <translation>%1 of %2 %3 found so far</translation>
    </message>
    <message>
        <source>%1 left</source>
        <comment>minutes and seconds</comment>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>y yes</source>
        <comment>answers, all that mean it</comment>
        <translation>y yes</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was renamed.</source>
        <translation>Interrupted. Nothing was renamed.</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Reading</translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Renaming</translation>
    </message>
    <message>
        <source>Cannot be renamed:</source>
        <translation>Cannot be renamed:</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos have no date; the times of their files are used.</source>
        <translation>
            <numerusform>%1 photo has no date; the time of its file is used.</numerusform>
            <numerusform>%1 photos have no date; the times of their files are used.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files have their new names already.</source>
        <translation>
            <numerusform>%1 file has its new name already.</numerusform>
            <numerusform>%1 files have their new names already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nothing would be renamed: %1 of %2 photo cannot get its new name.
Add --skip-problems to rename the others.</numerusform>
            <numerusform>Nothing would be renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</source>
        <translation>
            <numerusform>Nothing was renamed: %1 of %2 photo cannot get its new name.
Add --skip-problems to rename the others.</numerusform>
            <numerusform>Nothing was renamed: %1 of %2 photos cannot get their new names.
Add --skip-problems to rename the others.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to rename.</source>
        <translation>Nothing to rename.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be renamed. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 would be renamed. This was a dry run: nothing was changed.</numerusform>
            <numerusform>%1 would be renamed. This was a dry run: nothing was changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was renamed.</source>
        <translation>Nothing was renamed.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files could not get their old names back.</source>
        <translation>
            <numerusform>%1 file could not get its old name back.</numerusform>
            <numerusform>%1 files could not get their old names back.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed; &quot;lumidex undo&quot; undoes it.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renamed; &quot;lumidex undo&quot; undoes it.</numerusform>
            <numerusform>%1 renamed; &quot;lumidex undo&quot; undoes it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 renamed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 renamed.</numerusform>
            <numerusform>%1 renamed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problems</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Report: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 pictures could not be read; placeholders stand for them.</source>
        <translation>
            <numerusform>%1 picture could not be read; a placeholder stands for it.</numerusform>
            <numerusform>%1 pictures could not be read; placeholders stand for them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Made %1 photos in %2</source>
        <translation>
            <numerusform>Made %1 photo in %2</numerusform>
            <numerusform>Made %1 photos in %2</numerusform>
        </translation>
    </message>
    <message>
        <source>not an image</source>
        <translation>not an image</translation>
    </message>
    <message>
        <source>loop</source>
        <translation>loop</translation>
    </message>
    <message>
        <source>Not added:</source>
        <translation>Not added:</translation>
    </message>
    <message numerus="yes">
        <source>%1 original</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 original</numerusform>
            <numerusform>%1 original</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 digitised</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 digitised</numerusform>
            <numerusform>%1 digitised</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 file time</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 file time</numerusform>
            <numerusform>%1 file time</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 none</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 none</numerusform>
            <numerusform>%1 none</numerusform>
        </translation>
    </message>
    <message>
        <source>Dates read: %1</source>
        <translation>Dates read: %1</translation>
    </message>
    <message numerus="yes">
        <source>files found</source>
        <translation>
            <numerusform>file found</numerusform>
            <numerusform>files found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>new</source>
        <comment>files</comment>
        <translation>
            <numerusform>new</numerusform>
            <numerusform>new</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read again</source>
        <comment>files</comment>
        <translation>
            <numerusform>read again</numerusform>
            <numerusform>read again</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>changed</source>
        <comment>files</comment>
        <translation>
            <numerusform>changed</numerusform>
            <numerusform>changed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>unchanged</source>
        <comment>files</comment>
        <translation>
            <numerusform>unchanged</numerusform>
            <numerusform>unchanged</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>missing, now marked as lost</source>
        <comment>files</comment>
        <translation>
            <numerusform>missing, now marked as lost</numerusform>
            <numerusform>missing, now marked as lost</numerusform>
        </translation>
    </message>
    <message>
        <source>This was a dry run: nothing was stored.</source>
        <translation>This was a dry run: nothing was stored.</translation>
    </message>
    <message>
        <source>Catalogue: %1</source>
        <translation>Catalogue: %1</translation>
    </message>
    <message>
        <source>Scanning</source>
        <translation>Scanning</translation>
    </message>
    <message>
        <source>Interrupted. What was read so far is in the catalogue; run the same command to continue.</source>
        <translation>Interrupted. What was read so far is in the catalogue; run the same command to continue.</translation>
    </message>
    <message>
        <source>Analysing</source>
        <translation>Analysing</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Grouping</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Measuring</translation>
    </message>
    <message>
        <source>Interrupted. What was moved is in the trash.</source>
        <translation>Interrupted. What was moved is in the trash.</translation>
    </message>
    <message>
        <source>Interrupted. Run the same command to continue.</source>
        <translation>Interrupted. Run the same command to continue.</translation>
    </message>
    <message>
        <source>Interrupted. Nothing was moved.</source>
        <translation>Interrupted. Nothing was moved.</translation>
    </message>
    <message>
        <source>Move %1 to the trash? [y/N]</source>
        <translation>Move %1 to the trash? [y/N]</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>Moving</translation>
    </message>
    <message>
        <source>Keep %1</source>
        <comment>a file</comment>
        <translation>Keep %1</translation>
    </message>
    <message>
        <source>Keep %1: %2</source>
        <comment>a file: why</comment>
        <translation>Keep %1: %2</translation>
    </message>
    <message>
        <source>%1, %2, score %3</source>
        <comment>pixels, size, number</comment>
        <translation>%1, %2, score %3</translation>
    </message>
    <message>
        <source>largest</source>
        <comment>photo</comment>
        <translation>largest</translation>
    </message>
    <message>
        <source>sharpest</source>
        <comment>photo</comment>
        <translation>sharpest</translation>
    </message>
    <message>
        <source>has camera data</source>
        <translation>has camera data</translation>
    </message>
    <message>
        <source>earliest</source>
        <comment>photo</comment>
        <translation>earliest</translation>
    </message>
    <message>
        <source>first by name</source>
        <translation>first by name</translation>
    </message>
    <message>
        <source>Not compared:</source>
        <translation>Not compared:</translation>
    </message>
    <message numerus="yes">
        <source>No similar photos among %1 photos.</source>
        <translation>
            <numerusform>No similar photos among %1 photo.</numerusform>
            <numerusform>No similar photos among %1 photos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 groups of similar photos</source>
        <translation>
            <numerusform>%1 group of similar photos</numerusform>
            <numerusform>%1 groups of similar photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>among %1 photos</source>
        <translation>
            <numerusform>among %1 photo</numerusform>
            <numerusform>among %1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos (%2) besides those to keep.</source>
        <translation>
            <numerusform>%1 photo (%2) besides those to keep.</numerusform>
            <numerusform>%1 photos (%2) besides those to keep.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2; %3</source>
        <comment>groups of similar photos; among how many; others</comment>
        <translation>%1 %2; %3</translation>
    </message>
    <message>
        <source>keep</source>
        <comment>a photo</comment>
        <translation>keep</translation>
    </message>
    <message>
        <source>trash</source>
        <comment>it goes there</comment>
        <translation>trash</translation>
    </message>
    <message>
        <source>stay</source>
        <comment>a photo does</comment>
        <translation>stay</translation>
    </message>
    <message numerus="yes">
        <source>Group %1, %2 photos:</source>
        <translation>
            <numerusform>Group %1, %2 photo:</numerusform>
            <numerusform>Group %1, %2 photos:</numerusform>
        </translation>
    </message>
    <message>
        <source>PHOTO</source>
        <translation>PHOTO</translation>
    </message>
    <message>
        <source>TO ITS CENTRE</source>
        <translation>TO ITS CENTRE</translation>
    </message>
    <message>
        <source>TO ITS OWN CENTRE</source>
        <translation>TO ITS OWN CENTRE</translation>
    </message>
    <message>
        <source>TO THE OTHER&apos;S</source>
        <translation>TO THE OTHER&apos;S</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in one group.</source>
        <translation>The photos score %1 against each other and are in one group.</translation>
    </message>
    <message>
        <source>The photos score %1 against each other and are in different groups.</source>
        <translation>The photos score %1 against each other and are in different groups.</translation>
    </message>
    <message>
        <source>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</source>
        <translation>A photo joins the first group whose centre scores above %1 against it. The centre is the
mean of the photos in the group at that time; later photos move it.</translation>
    </message>
    <message>
        <source>Matching all photos again gives the same groups.</source>
        <translation>Matching all photos again gives the same groups.</translation>
    </message>
    <message>
        <source>&quot;lumidex similar --anew&quot; makes all groups again.</source>
        <translation>&quot;lumidex similar --anew&quot; makes all groups again.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 photo</numerusform>
            <numerusform>%1 photos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%2 files)</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 (%2 file)</numerusform>
            <numerusform>%1 (%2 files)</numerusform>
        </translation>
    </message>
    <message>
        <source>rename %1</source>
        <comment>so many photos</comment>
        <translation>rename %1</translation>
    </message>
    <message>
        <source>shift dates by %1</source>
        <translation>shift dates by %1</translation>
    </message>
    <message>
        <source>set dates to %1</source>
        <translation>set dates to %1</translation>
    </message>
    <message>
        <source>rotate left</source>
        <translation>rotate left</translation>
    </message>
    <message>
        <source>rotate right</source>
        <translation>rotate right</translation>
    </message>
    <message>
        <source>rotate 180</source>
        <translation>rotate 180</translation>
    </message>
    <message>
        <source>move similar photos to the trash</source>
        <translation>move similar photos to the trash</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Yes to all</source>
        <translation>Yes to all</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>No to all</source>
        <translation>No to all</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save all</source>
        <translation>Save all</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abort</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Restore defaults</source>
        <translation>Restore defaults</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Nothing to move to the trash.</source>
        <translation>Nothing to move to the trash.</translation>
    </message>
    <message numerus="yes">
        <source>%1 would be moved to the trash. This was a dry run: nothing was changed.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 would be moved to the trash. This was a dry run: nothing was changed.</numerusform>
            <numerusform>%1 would be moved to the trash. This was a dry run: nothing was changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing was moved.</source>
        <translation>Nothing was moved.</translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</numerusform>
            <numerusform>%1 moved to the trash; &quot;lumidex undo&quot; brings back what is still there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 moved to the trash.</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>%1 moved to the trash.</numerusform>
            <numerusform>%1 moved to the trash.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files</source>
        <translation>
            <numerusform>%1 file</numerusform>
            <numerusform>%1 files</numerusform>
        </translation>
    </message>
    <message>
        <source>Not moved:</source>
        <translation>Not moved:</translation>
    </message>
    <message>
        <source>Left where they are</source>
        <translation>Left where they are</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Redoing</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Undoing</translation>
    </message>
    <message>
        <source>Interrupted. What was done so far stays done.</source>
        <translation>Interrupted. What was done so far stays done.</translation>
    </message>
    <message numerus="yes">
        <source>Only %1 of the %2 steps that you asked for.</source>
        <translation>
            <numerusform>Only %1 of the %2 steps that you asked for.</numerusform>
            <numerusform>Only %1 of the %2 steps that you asked for.</numerusform>
        </translation>
    </message>
    <message>
        <source>The setting %1 is invalid (%2); the default is used.</source>
        <translation>The setting %1 is invalid (%2); the default is used.</translation>
    </message>
    <message>
        <source>undone</source>
        <comment>a step</comment>
        <translation>undone</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>There is nothing to undo.</translation>
    </message>
    <message>
        <source>WHAT</source>
        <translation>WHAT</translation>
    </message>
    <message>
        <source>FILES</source>
        <translation>FILES</translation>
    </message>
    <message>
        <source>KEPT</source>
        <comment>so many bytes</comment>
        <translation>KEPT</translation>
    </message>
    <message>
        <source>Left as they are</source>
        <translation>Left as they are</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was redone.</source>
        <translation>Nothing of &quot;%1&quot; was redone.</translation>
    </message>
    <message>
        <source>Nothing of &quot;%1&quot; was undone.</source>
        <translation>Nothing of &quot;%1&quot; was undone.</translation>
    </message>
    <message>
        <source>Redone: %1.</source>
        <translation>Redone: %1.</translation>
    </message>
    <message>
        <source>Undone: %1.</source>
        <translation>Undone: %1.</translation>
    </message>
    <message numerus="yes">
        <source>Redone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Redone: %1, except for %2 file.</numerusform>
            <numerusform>Redone: %1, except for %2 files.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undone: %1, except for %2 files.</source>
        <translation>
            <numerusform>Undone: %1, except for %2 file.</numerusform>
            <numerusform>Undone: %1, except for %2 files.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</source>
        <translation>Older steps cannot be undone before this one; &quot;lumidex undo --skip&quot; skips it for good.</translation>
    </message>
    <message>
        <source>There is nothing to skip.</source>
        <translation>There is nothing to skip.</translation>
    </message>
    <message>
        <source>Skipped: %1.</source>
        <translation>Skipped: %1.</translation>
    </message>
    <message>
        <source>Its originals (%1) are kept until they exceed the limits of undo.</source>
        <translation>Its originals (%1) are kept until they exceed the limits of undo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 older steps cannot be undone any more.</source>
        <translation>
            <numerusform>%1 older step cannot be undone any more.</numerusform>
            <numerusform>%1 older steps cannot be undone any more.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Steps can be undone for %1 days of use, with up to %2 of originals.</source>
        <translation>
            <numerusform>Steps can be undone for %1 day of use, with up to %2 of originals.</numerusform>
            <numerusform>Steps can be undone for %1 days of use, with up to %2 of originals.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>There is nothing to redo.</translation>
    </message>
    <message>
        <source>Copies would share names with files of other shots:</source>
        <translation>Copies would share names with files of other shots:</translation>
    </message>
    <message>
        <source>file time</source>
        <comment>where a date is from</comment>
        <translation>file time</translation>
    </message>
    <message numerus="yes">
        <source>%1 frames</source>
        <translation>
            <numerusform>%1 frame</numerusform>
            <numerusform>%1 frames</numerusform>
        </translation>
    </message>
    <message>
        <source>DATE</source>
        <translation>DATE</translation>
    </message>
    <message>
        <source>FROM</source>
        <translation>FROM</translation>
    </message>
    <message>
        <source>CAMERA</source>
        <translation>CAMERA</translation>
    </message>
    <message>
        <source>POSITION</source>
        <translation>POSITION</translation>
    </message>
    <message>
        <source>PICTURE</source>
        <translation>PICTURE</translation>
    </message>
    <message>
        <source>ORIENTATION</source>
        <translation>ORIENTATION</translation>
    </message>
    <message>
        <source>SIZE</source>
        <translation>SIZE</translation>
    </message>
    <message>
        <source>Doubtful positions:</source>
        <translation>Doubtful positions:</translation>
    </message>
    <message>
        <source>Not read</source>
        <translation>Not read</translation>
    </message>
    <message>
        <source>TAKEN</source>
        <translation>TAKEN</translation>
    </message>
    <message>
        <source>TAGS</source>
        <translation>TAGS</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FILE</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos.</source>
        <comment>found, searched</comment>
        <translation>
            <numerusform>%1 of %2 photo.</numerusform>
            <numerusform>%1 of %2 photos.</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistics are on.</source>
        <translation>Statistics are on.</translation>
    </message>
    <message>
        <source>Statistics are off.</source>
        <translation>Statistics are off.</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>DAY</source>
        <translation>DAY</translation>
    </message>
    <message>
        <source>COMMAND</source>
        <translation>COMMAND</translation>
    </message>
    <message>
        <source>DETAILS</source>
        <translation>DETAILS</translation>
    </message>
    <message numerus="yes">
        <source>Statistics are on; %1 lines.</source>
        <translation>
            <numerusform>Statistics are on; %1 line.</numerusform>
            <numerusform>Statistics are on; %1 lines.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Statistics are off; %1 lines.</source>
        <translation>
            <numerusform>Statistics are off; %1 line.</numerusform>
            <numerusform>Statistics are off; %1 lines.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 lines of the statistics cannot be read.</source>
        <translation>
            <numerusform>%1 line of the statistics cannot be read.</numerusform>
            <numerusform>%1 lines of the statistics cannot be read.</numerusform>
        </translation>
    </message>
    <message>
        <source>The statistics are deleted.</source>
        <translation>The statistics are deleted.</translation>
    </message>
    <message>
        <source>tag %1</source>
        <comment>+one -another</comment>
        <translation>tag %1</translation>
    </message>
    <message>
        <source>No photo has the tag &quot;%1&quot;.</source>
        <translation>No photo has the tag &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>system</source>
        <comment>kind of tag</comment>
        <translation>system</translation>
    </message>
    <message>
        <source>icon</source>
        <comment>kind of tag</comment>
        <translation>icon</translation>
    </message>
    <message>
        <source>automatic</source>
        <comment>kind of tag</comment>
        <translation>automatic</translation>
    </message>
    <message>
        <source>own</source>
        <comment>kind of tag</comment>
        <translation>own</translation>
    </message>
    <message>
        <source>No photo has a tag yet. Run: lumidex tag FILE +TAG</source>
        <translation>No photo has a tag yet. Run: lumidex tag FILE +TAG</translation>
    </message>
    <message>
        <source>TAG</source>
        <translation>TAG</translation>
    </message>
    <message>
        <source>TYPE</source>
        <translation>TYPE</translation>
    </message>
    <message>
        <source>Not in the list</source>
        <translation>Not in the list</translation>
    </message>
    <message>
        <source>Not tagged</source>
        <translation>Not tagged</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed; &quot;lumidex undo&quot; undoes it.</source>
        <translation>
            <numerusform>%1 photo changed; &quot;lumidex undo&quot; undoes it.</numerusform>
            <numerusform>%1 photos changed; &quot;lumidex undo&quot; undoes it.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos changed.</source>
        <translation>
            <numerusform>%1 photo changed.</numerusform>
            <numerusform>%1 photos changed.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; undoes it.</source>
        <translation>&quot;lumidex undo&quot; undoes it.</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</source>
        <translation>
            <numerusform>%1 photo was left out, because it has no date but the time of its file. To include it, run: lumidex albums --file-times</numerusform>
            <numerusform>%1 photos were left out, because they have no date but the times of their files. To include them, run: lumidex albums --file-times</numerusform>
        </translation>
    </message>
    <message>
        <source>Refused by %1</source>
        <comment>commands</comment>
        <translation>Refused by %1</translation>
    </message>
    <message>
        <source>If all these photos are edited at once:</source>
        <translation>If all these photos are edited at once:</translation>
    </message>
    <message>
        <source>its sidecar</source>
        <translation>its sidecar</translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars would be edited along with them.</source>
        <translation>
            <numerusform>%1 sidecar would be edited along with them.</numerusform>
            <numerusform>%1 sidecars would be edited along with them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sidecars edited along with them.</source>
        <translation>
            <numerusform>%1 sidecar edited along with them.</numerusform>
            <numerusform>%1 sidecars edited along with them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 photos edited; it cannot be undone.</source>
        <translation>
            <numerusform>%1 photo edited; it cannot be undone.</numerusform>
            <numerusform>%1 photos edited; it cannot be undone.</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no photos or videos in the given folders.</source>
        <translation>There are no photos or videos in the given folders.</translation>
    </message>
    <message>
        <source>It is hidden</source>
        <translation>It is hidden</translation>
    </message>
    <message>
        <source>It is not a photo, a video or a file that belongs to one</source>
        <translation>It is not a photo, a video or a file that belongs to one</translation>
    </message>
    <message>
        <source>&quot;lumidex undo&quot; moves the copies of this run to the trash.</source>
        <translation>&quot;lumidex undo&quot; moves the copies of this run to the trash.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, as you chose; they stay where they are.</source>
        <translation>
            <numerusform>%1 file is not copied, as you chose; it stays where it is.</numerusform>
            <numerusform>%1 files are not copied, as you chose; they stay where they are.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</source>
        <translation>
            <numerusform>%1 file is not copied, because it is not on removable storage; &quot;--to DIR&quot; copies it.</numerusform>
            <numerusform>%1 files are not copied, because they are not on removable storage; &quot;--to DIR&quot; copies them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them are videos, which the catalogue does not hold.</source>
        <translation>
            <numerusform>%1 of them is a video, which the catalogue does not hold.</numerusform>
            <numerusform>%1 of them are videos, which the catalogue does not hold.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 housekeeping files of cameras and systems are not copied.</source>
        <translation>
            <numerusform>%1 housekeeping file of cameras and systems is not copied.</numerusform>
            <numerusform>%1 housekeeping files of cameras and systems are not copied.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not everything in %1 is copied: do not format or empty it yet.</source>
        <translation>Not everything in %1 is copied: do not format or empty it yet.</translation>
    </message>
    <message>
        <source>Copies are in %1 itself: do not format or empty it.</source>
        <translation>Copies are in %1 itself: do not format or empty it.</translation>
    </message>
    <message numerus="yes">
        <source>%1 steps cannot be undone any more, because more than %2 days of use have passed.</source>
        <translation>
            <numerusform>%1 step cannot be undone any more, because more than %2 days of use have passed.</numerusform>
            <numerusform>%1 steps cannot be undone any more, because more than %2 days of use have passed.</numerusform>
        </translation>
    </message>
    <message>
        <source>Links that lead to the new names:</source>
        <translation>Links that lead to the new names:</translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links lead to the new names.</source>
        <translation>
            <numerusform>%1 symbolic link leads to the new name.</numerusform>
            <numerusform>%1 symbolic links lead to the new names.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 symbolic links keep their names.</source>
        <translation>
            <numerusform>%1 symbolic link keeps its name.</numerusform>
            <numerusform>%1 symbolic links keep their names.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %2 more</source>
        <comment>files</comment>
        <translation>
            <numerusform>%1 and %2 more</numerusform>
            <numerusform>%1 and %2 more</numerusform>
        </translation>
    </message>
    <message>
        <source>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</source>
        <translation>These may be photos that were moved, but several files or photos come into question.
The photos keep their tags and albums, the files are new:</translation>
    </message>
    <message numerus="yes">
        <source>%1 XMP</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 XMP</numerusform>
            <numerusform>%1 XMP</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 IPTC</source>
        <comment>dates read</comment>
        <translation>
            <numerusform>%1 IPTC</numerusform>
            <numerusform>%1 IPTC</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>moved or renamed</source>
        <comment>files</comment>
        <translation>
            <numerusform>moved or renamed</numerusform>
            <numerusform>moved or renamed</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep this one</source>
        <comment>a photo</comment>
        <translation>Keep this one</translation>
    </message>
    <message>
        <source>Same picture</source>
        <translation>Same picture</translation>
    </message>
    <message>
        <source>Alike</source>
        <comment>a photo</comment>
        <translation>Alike</translation>
    </message>
    <message>
        <source>Different</source>
        <comment>a photo</comment>
        <translation>Different</translation>
    </message>
    <message>
        <source>Could not be compared</source>
        <comment>a photo</comment>
        <translation>Could not be compared</translation>
    </message>
    <message numerus="yes">
        <source>Group %1: %2 photos like %3</source>
        <translation>
            <numerusform>Group %1: %2 photo like %3</numerusform>
            <numerusform>Group %1: %2 photos like %3</numerusform>
        </translation>
    </message>
    <message>
        <source>undamaged</source>
        <comment>photo</comment>
        <translation>undamaged</translation>
    </message>
    <message>
        <source>the camera&apos;s own file</source>
        <translation>the camera&apos;s own file</translation>
    </message>
    <message>
        <source>has maker notes</source>
        <translation>has maker notes</translation>
    </message>
    <message>
        <source>not written by another program</source>
        <translation>not written by another program</translation>
    </message>
    <message>
        <source>compressed less</source>
        <translation>compressed less</translation>
    </message>
    <message>
        <source>more bytes per pixel</source>
        <translation>more bytes per pixel</translation>
    </message>
    <message>
        <source>named by the camera</source>
        <translation>named by the camera</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</source>
        <translation>
            <numerusform>%1 photo cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists it.</numerusform>
            <numerusform>%1 photos cannot be compared, as before; &quot;lumidex similar --not-compared&quot; lists them.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are the same picture.</source>
        <translation>They are the same picture.</translation>
    </message>
    <message>
        <source>They are alike, and not the same picture.</source>
        <translation>They are alike, and not the same picture.</translation>
    </message>
    <message>
        <source>They are different pictures.</source>
        <translation>They are different pictures.</translation>
    </message>
    <message>
        <source>Their pictures could not be compared.</source>
        <translation>Their pictures could not be compared.</translation>
    </message>
    <message>
        <source>same</source>
        <comment>a picture</comment>
        <translation>same</translation>
    </message>
    <message>
        <source>alike</source>
        <comment>a picture</comment>
        <translation>alike</translation>
    </message>
    <message>
        <source>different</source>
        <comment>a picture</comment>
        <translation>different</translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a verdict</comment>
        <translation>unknown</translation>
    </message>
    <message>
        <source>GROUP</source>
        <translation>GROUP</translation>
    </message>
    <message>
        <source>VERDICT</source>
        <translation>VERDICT</translation>
    </message>
    <message>
        <source>To undo the edit, %1 of originals must be kept, but the limit is %2.</source>
        <translation>To undo the edit, %1 of originals must be kept, but the limit is %2.</translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</source>
        <translation>&quot;lumidex undo --keep-size %1&quot; raises the limit; with --no-undo nothing is kept, and the edit cannot be undone.</translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</source>
        <translation>
            <numerusform>To keep %1 of originals within the limit of %2, undo would have to forget %3 older step:</numerusform>
            <numerusform>To keep %1 of originals within the limit of %2, undo would have to forget %3 older steps:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</source>
        <translation>
            <numerusform>To keep %1 of originals within the limit of %2, undo forgets %3 older step:</numerusform>
            <numerusform>To keep %1 of originals within the limit of %2, undo forgets %3 older steps:</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</source>
        <translation>&quot;lumidex undo --keep-size %1&quot; makes room for all of them.</translation>
    </message>
    <message>
        <source>--forget-older allows it.</source>
        <translation>--forget-older allows it.</translation>
    </message>
    <message>
        <source>Forget them and continue? [y/N]</source>
        <translation>Forget them and continue? [y/N]</translation>
    </message>
    <message>
        <source>No originals would be kept, so the edit could not be undone.</source>
        <translation>No originals would be kept, so the edit could not be undone.</translation>
    </message>
    <message>
        <source>The edit would be refused.</source>
        <translation>The edit would be refused.</translation>
    </message>
    <message numerus="yes">
        <source>import %1 files to %2</source>
        <translation>
            <numerusform>import %1 file to %2</numerusform>
            <numerusform>import %1 files to %2</numerusform>
        </translation>
    </message>
    <message>
        <source>accept album %1</source>
        <translation>accept album %1</translation>
    </message>
    <message numerus="yes">
        <source>accept %1 albums</source>
        <translation>
            <numerusform>accept %1 album</numerusform>
            <numerusform>accept %1 albums</numerusform>
        </translation>
    </message>
    <message>
        <source>alike to %1</source>
        <comment>a photo is; a file</comment>
        <translation>alike to %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos are alike and not the same picture; they stay unless --alike is given.</source>
        <translation>
            <numerusform>%1 photo is alike and not the same picture; it stays unless --alike is given.</numerusform>
            <numerusform>%1 photos are alike and not the same picture; they stay unless --alike is given.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Move %1 to the trash, %2 of which are only alike? [y/N]</source>
        <comment>so many photos</comment>
        <translation>
            <numerusform>Move %1 to the trash, %2 of which is only alike? [y/N]</numerusform>
            <numerusform>Move %1 to the trash, %2 of which are only alike? [y/N]</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo without keeping what redo needs? [y/N]</source>
        <translation>Undo without keeping what redo needs? [y/N]</translation>
    </message>
    <message numerus="yes">
        <source>%1 copies are in the trash now.</source>
        <translation>
            <numerusform>%1 copy is in the trash now.</numerusform>
            <numerusform>%1 copies are in the trash now.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</source>
        <translation>There is no room to keep what redo needs; &quot;lumidex undo --no-redo&quot; undoes without it.</translation>
    </message>
    <message numerus="yes">
        <source>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</source>
        <translation>
            <numerusform>Undo of &quot;%1&quot; (%2) will leave %3 file as it is, because this step changed it later:</numerusform>
            <numerusform>Undo of &quot;%1&quot; (%2) will leave %3 files as they are, because this step changed them later:</numerusform>
        </translation>
    </message>
    <message>
        <source>unknown</source>
        <comment>a date</comment>
        <translation>unknown</translation>
    </message>
    <message numerus="yes">
        <source>%1 files or folders would be refused.</source>
        <translation>
            <numerusform>%1 file or folder would be refused.</numerusform>
            <numerusform>%1 files or folders would be refused.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>An import skips %1 other files (--json lists them).</source>
        <translation>
            <numerusform>An import skips %1 other file (--json lists it).</numerusform>
            <numerusform>An import skips %1 other files (--json lists them).</numerusform>
        </translation>
    </message>
    <message>
        <source>Every file in %1 has a verified copy elsewhere.</source>
        <translation>Every file in %1 has a verified copy elsewhere.</translation>
    </message>
    <message>
        <source>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</source>
        <translation>Every file in %1, except for housekeeping files, has a verified copy elsewhere.</translation>
    </message>
    <message>
        <source>It is safe to format.</source>
        <translation>It is safe to format.</translation>
    </message>
    <message>
        <source>It is safe to format as far as this folder is concerned; what is outside it was not checked.</source>
        <translation>It is safe to format as far as this folder is concerned; what is outside it was not checked.</translation>
    </message>
    <message>
        <source>not enlarged</source>
        <translation>not enlarged</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</source>
        <translation>The disk of %1 has %2 free, but editing all photos needs %3: the last ones would not be edited.</translation>
    </message>
    <message numerus="yes">
        <source>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</source>
        <translation>
            <numerusform>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</numerusform>
            <numerusform>The sources of %1 of them are gone or changed: do not empty the trash before you have another copy.</numerusform>
        </translation>
    </message>
    <message>
        <source>Interrupted. The photos edited so far stay edited.</source>
        <translation>Interrupted. The photos edited so far stay edited.</translation>
    </message>
    <message>
        <source>Interrupted. The photos made so far stay; delete the folder before you try again.</source>
        <translation>Interrupted. The photos made so far stay; delete the folder before you try again.</translation>
    </message>
    <message>
        <source>,</source>
        <comment>between thousands</comment>
        <translation>,</translation>
    </message>
    <message>
        <source>.</source>
        <comment>before decimals</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KiB</source>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <source>%1 GiB</source>
        <translation>%1 GiB</translation>
    </message>
    <message>
        <source>%1 TiB</source>
        <translation>%1 TiB</translation>
    </message>
    <message>
        <source>%1 PiB</source>
        <translation>%1 PiB</translation>
    </message>
    <message>
        <source>%1 EiB</source>
        <translation>%1 EiB</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 of %2 photo, taken on %3.</numerusform>
            <numerusform>%1 of %2 photos, taken on %3.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken from %3 to %4.</source>
        <comment>found, searched, dates</comment>
        <translation>
            <numerusform>%1 of %2 photo, taken from %3 to %4.</numerusform>
            <numerusform>%1 of %2 photos, taken from %3 to %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or later.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 of %2 photo, taken on %3 or later.</numerusform>
            <numerusform>%1 of %2 photos, taken on %3 or later.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 photos, taken on %3 or earlier.</source>
        <comment>found, searched, date</comment>
        <translation>
            <numerusform>%1 of %2 photo, taken on %3 or earlier.</numerusform>
            <numerusform>%1 of %2 photos, taken on %3 or earlier.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</source>
        <translation>
            <numerusform>%1 of them (%2) is the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves it to the trash.</numerusform>
            <numerusform>%1 of them (%2) are the same picture as the photo to keep; &quot;lumidex similar --trash&quot; moves them to the trash.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not the same picture as the photo to keep, only alike:</source>
        <translation>Not the same picture as the photo to keep, only alike:</translation>
    </message>
    <message>
        <source>cannot be undone</source>
        <comment>a step</comment>
        <translation>cannot be undone</translation>
    </message>
    <message>
        <source>running</source>
        <comment>a step</comment>
        <translation>running</translation>
    </message>
    <message>
        <source>WHEN</source>
        <comment>a step</comment>
        <translation>WHEN</translation>
    </message>
    <message>
        <source>%1; %2</source>
        <comment>files checked; outcome</comment>
        <translation>%1; %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <comment>copies; photos added; dry run</comment>
        <translation>%1, %2 %3</translation>
    </message>
    <message numerus="yes">
        <source>would be the name of %1 photos: %2</source>
        <translation>
            <numerusform>would be the name of %1 photo: %2</numerusform>
            <numerusform>would be the name of %1 photos: %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Within these limits, undo would have to forget %1 older steps:</source>
        <translation>
            <numerusform>Within these limits, undo would have to forget %1 older step:</numerusform>
            <numerusform>Within these limits, undo would have to forget %1 older steps:</numerusform>
        </translation>
    </message>
    <message>
        <source>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</source>
        <translation>Whether a photo goes to the trash also depends on the one that is kept of its group, and on tags, albums, settings and second names; &quot;lumidex similar --trash --dry-run&quot; tells.</translation>
    </message>
</context>
<context>
    <name>Zenvora::Lumidex::Utils</name>
    <message>
        <source>Attention</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>All of the selected files do not have read permissions, they will not be added.</source>
        <translation>All of the selected files do not have read permissions, they will not be added.</translation>
    </message>
    <message>
        <source>Some of the selected files do not have read permissions, they will not be added.</source>
        <translation>Some of the selected files do not have read permissions, they will not be added.</translation>
    </message>
    <message>
        <source>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</source>
        <translation>Some of the selected photos are on removable storage. Would you like copy they to your hard drive?</translation>
    </message>
    <message>
        <source>The selected directory is temporary, select another directory.</source>
        <translation>The selected directory is temporary, select another directory.</translation>
    </message>
    <message>
        <source>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</source>
        <translation>Some of the selected photos are in read-only formats (for example, %1). They will be converted to JPG or PNG after applying the tool.</translation>
    </message>
    <message>
        <source>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</source>
        <translation>The selected photo is in read-only formats (%1). It will be converted to JPG or PNG after applying the tool.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk %1</source>
        <translation>There is not enough space on the disk %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit files in this folder: %1</source>
        <translation>You do not have permission to edit files in this folder: %1</translation>
    </message>
    <message>
        <source>You do not have permission to edit file: %1</source>
        <translation>You do not have permission to edit file: %1</translation>
    </message>
    <message>
        <source>day</source>
        <translation>day</translation>
    </message>
    <message>
        <source>days</source>
        <translation>days</translation>
    </message>
    <message>
        <source>Expired</source>
        <translation>Expired</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>One day</source>
        <translation>day</translation>
    </message>
    <message>
        <source>Nominative day</source>
        <translation>days</translation>
    </message>
    <message>
        <source>Genetive day</source>
        <translation>days</translation>
    </message>
    <message>
        <source>Plural day</source>
        <translation>days</translation>
    </message>
    <message>
        <source>One album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>Nominative album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>Genetive album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>Plural album</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>album</source>
        <translation>album</translation>
    </message>
    <message>
        <source>albums</source>
        <translation>albums</translation>
    </message>
    <message>
        <source>One group</source>
        <translation>group</translation>
    </message>
    <message>
        <source>Nominative group</source>
        <translation>groups</translation>
    </message>
    <message>
        <source>Genetive group</source>
        <translation>groups</translation>
    </message>
    <message>
        <source>Plural group</source>
        <translation>groups</translation>
    </message>
    <message>
        <source>group</source>
        <translation>group</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>groups</translation>
    </message>
    <message>
        <source>One photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>Nominative photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Genetive photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Plural photo</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>photos</translation>
    </message>
</context>
</TS>
