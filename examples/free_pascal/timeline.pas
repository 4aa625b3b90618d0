{ A host in Free Pascal: calls by table through the unit that the importer wrote from the type library, events
  as properties of an object, and the same time line late bound by names. }
program timeline;

{$mode delphi}{$H+}

uses
  ActiveX, ComObj, Variants, MURTimeline_1_0_TLB;

type
  TListener = class
    procedure Added(Sender: TObject; Key: OleVariant);
    procedure Changed(Sender: TObject; Member: IMURTimelineObject; Name: WideString; Value: OleVariant);
  end;

procedure TListener.Added(Sender: TObject; Key: OleVariant);
begin
  WriteLn('added: ', Key);
end;

procedure TListener.Changed(Sender: TObject; Member: IMURTimelineObject; Name: WideString; Value: OleVariant);
begin
  WriteLn('changed: ', Member.Key, ' ', Name);
end;

procedure Fill(Line: _CMURTimeline);
var
  key: OleVariant;
  scene, clip: IMURTimelineObject;
begin
  key := 'Scene 1';
  scene := Line.Add(murtlotGroup, key, True);
  scene.WorldTimeT0 := 36526.25;  { 1 January 2000, six o'clock }
  scene.Duration := 90;           { seconds }
  clip := CoCMURTimelineMedia.Create as IMURTimelineObject;
  (clip as _CMURTimelineMedia).MediaFilename := 'take.wav';
  scene.Add(clip, 'Take 1');
  clip.Duration := 30;
end;

procedure ShowLateBound(Line: OleVariant);
var
  position: Integer;
begin
  Line.Add(murtlotScalar, 'Scene 2');
  for position := 1 to Line.Count do
    WriteLn(Line.Item(position).Key, ' lasts ', Line.Item(position).Duration, ' and has ',
      Line.Item(position).Count, ' children');
end;

procedure Run;
var
  listener: TListener;
  events: TEvsCMURTimeline;
begin
  listener := TListener.Create;
  events := TEvsCMURTimeline.Create(nil);
  events.OnTLObjectAdded := listener.Added;
  events.OnTLObjectPropertyChanged := listener.Changed;
  Fill(events.ComServer);
  ShowLateBound(events.ComServer as IDispatch);
  events.ComServer.Clear;
  WriteLn('members: ', events.ComServer.Count);
  events.Free;
  listener.Free;
end;

begin
  Run;
end.
