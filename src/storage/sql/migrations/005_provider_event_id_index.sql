-- Lookup of events by the remote service's own id, used by every pull.
CREATE INDEX IF NOT EXISTS idx_events_calendar_provider ON events(calendar_id, provider_event_id);
