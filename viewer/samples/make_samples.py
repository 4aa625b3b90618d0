#!/usr/bin/env python3
"""Writes the sample files: a short film's edit (feature_film.otio) and its subtitles (feature_film.srt).

The film is made up. 25 frames a second, starting at one hour, as edits for television usually do.
"""
import json
import pathlib
import re

RATE = 25
FOLDER = pathlib.Path(__file__).parent


def frames(seconds):
    return round(seconds * RATE)


def time(seconds):
    return {"OTIO_SCHEMA": "RationalTime.1", "rate": RATE, "value": frames(seconds)}


def span(start, duration):
    return {"OTIO_SCHEMA": "TimeRange.1", "start_time": time(start), "duration": time(duration)}


def item(schema, name, **fields):
    return {"OTIO_SCHEMA": schema, "name": name, "metadata": {}, "effects": [], "markers": [], "enabled": True,
            **fields}


def marker(name, at, color, comment, duration=0):
    return {"OTIO_SCHEMA": "Marker.2", "name": name, "color": color, "comment": comment, "metadata": {},
            "marked_range": span(at, duration)}


def clip(name, duration, cut_in, length, folder="rushes", suffix="mov", markers=()):
    """A piece of a recording that is `length` seconds long, from `cut_in` on."""
    file = name.lower().replace(" ", "_") + "." + suffix
    reference = {"OTIO_SCHEMA": "ExternalReference.1", "name": name, "metadata": {},
                 "available_range": span(0, length), "target_url": f"file:///projects/salt_and_glass/{folder}/{file}"}
    return item("Clip.2", name, source_range=span(cut_in, duration), markers=list(markers),
                media_references={"DEFAULT_MEDIA": reference}, active_media_reference_key="DEFAULT_MEDIA")


def card(name, duration, kind="Title"):
    """A title card or subtitle: generated, without a file."""
    reference = {"OTIO_SCHEMA": "GeneratorReference.1", "name": name, "metadata": {}, "available_range": None,
                 "generator_kind": kind, "parameters": {}}
    return item("Clip.2", name, source_range=span(0, duration), media_references={"DEFAULT_MEDIA": reference},
                active_media_reference_key="DEFAULT_MEDIA")


def gap(duration):
    return item("Gap.1", "", source_range=span(0, duration))


def dissolve(seconds):
    return {"OTIO_SCHEMA": "Transition.1", "name": "Dissolve", "metadata": {}, "transition_type": "SMPTE_Dissolve",
            "in_offset": time(seconds / 2), "out_offset": time(seconds / 2)}


def track(name, kind, children):
    return item("Track.1", name, kind=kind, source_range=None, children=children)


def stack(name, children, markers=()):
    return item("Stack.1", name, source_range=None, children=children, markers=list(markers))


def title_sequence():
    plates = track("Plates", "Video", [
        clip("Sea Plate Dawn", 9, 4, 40, "plates"), dissolve(2), clip("Glass Macro 02", 11, 12, 55, "plates")])
    titles = track("Titles", "Video", [
        gap(2.4), card("Salt & Glass", 6), gap(2), card("a film by Ines Maro", 4.4), gap(1),
        card("with Tomas Reh", 3)])
    return stack("Title Sequence", [plates, titles])


def picture_main():
    return track("V1", "Video", [
        title_sequence(), dissolve(1.6),
        clip("Sc01 Sh03 Harbour Wide", 13.2, 21, 64), clip("Sc01 Sh05 Ines Walks", 8.4, 6.2, 31),
        clip("Sc01 Sh06 Hands Rope", 4.6, 2.4, 18), clip("Sc01 Sh05 Ines Walks", 9.8, 17, 31),
        dissolve(2), clip("Sc02 Sh01 Workshop Ext", 7.4, 3, 26),
        clip("Sc02 Sh02 Furnace", 12, 14.6, 70, markers=[
            marker("Grade", 18, "ORANGE", "Lift the shadows on the furnace door", 2)]),
        clip("Sc02 Sh04 Tomas CU", 6.8, 9, 24), clip("Sc02 Sh05 Ines CU", 5.2, 4, 29),
        clip("Sc02 Sh04 Tomas CU", 8, 15.2, 24), clip("Sc02 Sh07 Two Shot", 15.6, 31, 88),
        clip("Sc02 Sh05 Ines CU", 7.2, 12.4, 29), gap(1.2),
        clip("Sc03 Sh01 Storm Drone", 18.4, 40, 121), clip("Sc03 Sh02 Lantern", 9.2, 3.2, 22),
        clip("Sc03 Sh04 Running", 11, 8, 37), dissolve(1.2), clip("Sc03 Sh06 Breaking Glass", 6.4, 1, 11),
        dissolve(3), clip("Sc04 Sh01 Morning Beach", 24.8, 18, 96), dissolve(2), card("End Card", 8)])


def picture_cutaways():
    return track("V2", "Video", [
        gap(27), clip("Gulls 01", 3.6, 11, 48, "cutaways"), gap(31.6), clip("Sparks Macro", 4, 2, 15, "cutaways"),
        gap(9.4), clip("Clock Insert", 2.6, 0.8, 9, "cutaways"), gap(19.4),
        clip("Kettle Insert", 3.4, 5, 14, "cutaways"), gap(26.6), clip("Radar Screen", 5, 3.4, 20, "cutaways"),
        gap(8.6), clip("Waves Slow Motion", 7.8, 22, 90, "cutaways")])


def picture_graphics():
    return track("V3", "Video", [
        gap(22), card("Lower Third Harbour", 5), gap(32), card("Lower Third Workshop", 5), gap(62),
        clip("Rain Overlay", 30, 0, 60, "vfx"), gap(22), card("Two Years Later", 4)])


def sound_dialogue():
    return track("A1", "Audio", [
        gap(33.6), clip("Sc01 Ines Wild 02", 9, 1.2, 16, "sound", "wav"), gap(27),
        clip("Sc02 Boom T3", 22, 9, 70, "sound", "wav"), clip("Sc02 Boom T5", 24.6, 31, 88, "sound", "wav"),
        gap(4), clip("ADR Tomas 07", 6, 0.4, 8, "adr", "wav"), gap(12),
        clip("Sc03 Shout T1", 8.4, 2, 19, "sound", "wav"), gap(24), clip("Narration End", 17, 0, 17, "adr", "wav")])


def sound_ambience():
    return track("A2", "Audio", [
        clip("Sea Calm", 55.6, 30, 240, "ambience", "wav"), dissolve(2),
        clip("Furnace Room Tone", 63.4, 5, 180, "ambience", "wav"), dissolve(3),
        clip("Storm Surround", 46.2, 12, 200, "ambience", "wav"), dissolve(4),
        clip("Beach Morning", 32, 8, 150, "ambience", "wav")])


def sound_music():
    return track("A3", "Audio", [
        clip("M1 Title Theme", 34, 0, 62, "music", "wav"), gap(56), clip("M2 Furnace Waltz", 28, 4, 95, "music", "wav"),
        gap(3), clip("M3 Storm", 41, 0, 71, "music", "wav"), dissolve(2), clip("M4 Credits", 36, 2, 180, "music", "wav")])


def subtitle_tracks():
    """The cues in tracks on which they do not overlap."""
    tracks, ends = [], []
    for cue_start, cue_end, text in SUBTITLES:
        start, end = frames(cue_start) / RATE, frames(cue_end) / RATE
        lane = next((i for i, at in enumerate(ends) if at <= start), len(ends))
        if lane == len(ends):
            tracks.append([])
            ends.append(0)
        plain = re.sub(r"<[^>]*>", "", text).replace("\n", " ")
        tracks[lane] += [gap(start - ends[lane]), card(plain, end - start, "Subtitle")]
        ends[lane] = end
    return [track(f"S{i}", "Subtitle", children) for i, children in enumerate(tracks, 1)]


def edit():
    notes = [marker("Titles out", 20, "GREEN", "Picture lock up to here"),
             marker("Check sync", 84, "RED", "Boom runs two frames late"),
             marker("Storm", 120.2, "CYAN", "Sound effects to come", 27.4),
             marker("Music hit", 164, "PURPLE", "Glass breaks on the beat")]
    tracks = stack("tracks", [picture_main(), picture_cutaways(), picture_graphics(), *subtitle_tracks(),
                              sound_dialogue(), sound_ambience(), sound_music()], notes)
    return {"OTIO_SCHEMA": "Timeline.1", "name": "Salt & Glass, Reel 1", "metadata": {},
            "global_start_time": time(3600), "tracks": tracks}


SUBTITLES = [
    (33.8, 36.4, "You can smell it before you see it."), (36.6, 39.9, "The salt.\nIt gets into everything."),
    (40.4, 42.4, "Even the glass."), (69.9, 72.6, "You came back."), (72.3, 74.2, "<i>(furnace roars)</i>"),
    (74.5, 77.9, "I came for the lens.\nNothing else."), (78.4, 80.1, "Of course."),
    (80.0, 82.8, "<i>(from outside)</i> Tomas!"), (83.2, 86.3, "It cracked twice this winter."),
    (86.9, 91.0, "Then we pour it\na third time."), (92.2, 95.6, "There is no third time\nwith this sand."),
    (97.0, 99.8, "There is always one more."), (104.6, 107.4, "Listen."), (106.2, 110.0, "<i>(wind rises)</i>"),
    (120.8, 124.4, "The light is out!"), (132.9, 135.2, "Hold the door!"), (134.6, 138.8, "<i>(glass breaks)</i>"),
    (165.5, 169.7, "In the morning the beach\nwas white with it."), (170.4, 173.8, "Salt, I thought."),
    (174.3, 178.2, "Then it caught the sun."),
]


def stamp(seconds):
    ms = round(seconds * 1000)
    return f"{ms // 3600000:02}:{ms // 60000 % 60:02}:{ms // 1000 % 60:02},{ms % 1000:03}"


def subtitles():
    cues = (f"{number}\n{stamp(start)} --> {stamp(end)}\n{text}\n"
            for number, (start, end, text) in enumerate(SUBTITLES, 1))
    return "\n".join(cues)


(FOLDER / "feature_film.otio").write_text(json.dumps(edit(), indent=1) + "\n", encoding="utf-8")
(FOLDER / "feature_film.srt").write_text(subtitles(), encoding="utf-8")
