-- RELATED-TO link from an event to its parent (in practice a task).
ALTER TABLE events ADD COLUMN related_to_uid TEXT;
CREATE INDEX IF NOT EXISTS idx_events_related_to_uid ON events(related_to_uid);
